#pragma once

#include "calisma_baglami.h"

#include <QStringList>

class Veri;

// The start of a run: the password, the monthly safety copy, and what the
// menu reads at load.
namespace Oturum {

// The installation's password in its two spellings (upper and lower case
// the Turkish way). It is the "Parola" of the [Giris] group of ayarlar.ini
// in the data folder, "Z7" when the file does not set it.
QStringList ParolaYazimlari(const QString& klasor);

// The monthly safety copy of AYNIYAT.MDB, replacing this month's copy
// (VeriKlasoru::AylikKopyaAdi). SQLite's own copy of the live file is
// written to a temporary name beside it, opened and checked with
// quick_check, then renamed over the old copy in one step: on any failure
// the old copy stays whole and VeriHatasi is thrown. Opens its own
// connection, so it may run on a worker thread. Answers the copy's path.
QString AylikKopya(const QString& klasor);

// The working year and month and the institution's name from the constants
// row; errors are passed over and leave the values empty, as a first start
// without constants shows the empty menu.
CalismaBaglami MenuBaglami(Veri& veri);

}
