#pragma once

#include "calisma_baglami.h"

#include <QStringList>

// The start of a run: the password, the monthly safety copy, and what the
// menu reads at load.
namespace Oturum {

// The installation's password in its two spellings (upper and lower case
// the Turkish way). It is the "Parola" of the [Giris] group of ayarlar.ini
// in the data folder, "Z7" when the file does not set it.
QStringList ParolaYazimlari(const QString& klasor);

// The monthly safety copy of AYNIYAT.MDB: "AYNIYAT" + the month of today's
// date in two digits + ".MDB", replacing that month's copy. A consistent
// copy of the live file; on any failure the old copy stays and false comes
// back (the login goes on regardless).
bool AylikKopya(const QString& klasor);

// The working year and month and the institution's name from the constants
// row; errors are passed over and leave the values empty, as a first start
// without constants shows the empty menu.
CalismaBaglami MenuBaglami(const QString& klasor);

}
