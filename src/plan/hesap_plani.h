#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class Izgara;
class Veritabani;
class Yazici;

// The upper levels of the code plan: table HESAP_K of GENEL.MDB, code and
// name. A code is kept as typed, trimmed; its form is never checked, so a
// code of another shape is stored and then simply missed by the level tests
// that cut it by position. Every routine throws VeriHatasi when the file
// cannot be read or written.
namespace HesapPlani {

enum class Sira { HesapKod, HesapAd };

// The rows of the list, code and name. A filter matches the start of the
// text, case-blind; when both are filled the name filter alone acts.
QList<QStringList> Liste(Veritabani& genel, const QString& kodSuzgeci, const QString& adSuzgeci, Sira sira);

// The trimmed name of the code (looked up trimmed); nothing without a row.
std::optional<QString> Getir(Veritabani& genel, const QString& hesapKod);

// Updates the row of the trimmed code, or adds one; both values trimmed.
void Kaydet(Veritabani& genel, const QString& hesapKod, const QString& hesapAd);

// Whether the trimmed code has a row.
bool Var(Veritabani& genel, const QString& hesapKod);

// Deletes the rows of the code exactly as given: a code with a blank behind
// it deletes nothing. Classes and voucher lines under the code stay.
void Sil(Veritabani& genel, const QString& hesapKod);

// Numeric stepping of a main code: Page Down and Page Up of the code box,
// the up and down arrows beside it.
enum class Adim { SayfaAsagi, SayfaYukari, BTYukari, BTAsagi };

struct AdimSonucu
{
    QString HesapKod;
    bool Getir = false;  // the code was stepped and its row is to be fetched
};

// Throws Hata when the code has to be stepped but is no whole number (a
// code with blanks such as "150 01").
AdimSonucu KodAdimi(const QString& hesapKod, Adim adim);

// The printed list: an empty line, then every row of the grid with the
// first 19 characters of the code at Tab(2) and the name at Tab(23). No
// heading; a full page goes on to the next as the printer would. yon 2 is
// landscape, 1 portrait; punto above 0. Ends the document.
void Yaz(Yazici& p, const Izgara& izgara, int yon, double punto);

}
