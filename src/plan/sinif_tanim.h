#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class Izgara;
class Veritabani;
class Yazici;

// A row of URUN_K in GENEL.MDB as the class screen edits it, every value as
// text. A material class is the level 3 code a voucher line is booked to.
struct SinifSatiri
{
    QString HesapKod;
    QString MalzAdi;
    QString Birimi;
    QString KDV1;
    QString Barkod;
    QString Stok;  // the minimum stock level, stored as a number
    QString EskiKod;
};

// The material classes: the walk down the plan that proposes the next code,
// the card operations, the list and its printed pages. Every routine reading
// or writing the file throws VeriHatasi.
namespace SinifTanim {

// The four main codes, fixed in the program: rows of code and name.
const QList<QStringList>& AnaSiniflar();

// The level 1 plan rows (code, name) under a main code, and the level 2 rows
// under a level 1 code, in the order of the table. A row whose code repeats
// the one of the row before it, or whose name is empty, is left out.
QList<QStringList> BirinciDetaylar(Veritabani& genel, const QString& anaKod);
QList<QStringList> IkinciDetaylar(Veritabani& genel, const QString& birinciKod);

// The next class code under the clicked text (a level 2 code when the code
// column is clicked): the text plus " 001" when no class stands under it,
// else the number of the greatest code by text plus one. Gaps are not
// filled, and past 999 the text maximum stays at 999, so 1000 comes again.
QString SonrakiKod(Veritabani& genel, const QString& tiklananMetin);

// The row of the trimmed code; a NULL column comes back empty.
std::optional<SinifSatiri> Getir(Veritabani& genel, const QString& hesapKod);
bool Var(Veritabani& genel, const QString& hesapKod);

// Updates the row of the trimmed code, or adds one: every column, the texts
// trimmed, Birimi, KDV1 and Barkod cut to 8, 5 and 25 characters, Stok
// through Val. An empty code is a code like any other. One transaction.
void Kaydet(Veritabani& genel, const SinifSatiri& satir);

// Deletes the class of the trimmed code.
void Sil(Veritabani& genel, const QString& hesapKod);

// Deletes the rows without a code (brought over from the earlier version)
// that have this name and old code. Nothing while a code is given: answers
// whether the delete ran.
bool Sil2(Veritabani& genel, const QString& hesapKod, const QString& malzAdi, const QString& eskiKod);

// The order of the list: Opt1, Opt2, Opt3.
enum class Sira { HesapKod, MalzAdi, EskiKod };

// Headings and widths (twips) of the list.
const QStringList& Basliklar();
const QList<int>& Genislikler();

// The rows (code, name, tax rate, old code) whose field begins with the
// filter; of the filled filters only the last of code, name, old code acts.
QList<QStringList> Liste(Veritabani& genel, const QString& hesapNo1, const QString& malzemeAd1,
                         const QString& eskiKod1, Sira sira);

// Prints the rows of the list grid, the headings again on every page after
// the first, and ends the document.
void ListeYazdir(Yazici& p, const Izgara& izgara);

}
