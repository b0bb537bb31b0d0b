#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class Izgara;
class Veritabani;
class Yazici;

// A row of Unite_K in GENEL.MDB: a department goods are issued to.
struct UniteSatiri
{
    QString UniteKod;
    QString UniteAd;
};

// The units: the list, the next-code proposal, the card operations and the
// printed list. Every routine reading or writing the file throws VeriHatasi.
namespace UniteTanim {

// The order of the list: Op1 by code, Op2 by name.
enum class Sira { Kod, Ad };

// Headings and widths (twips) of the list.
const QStringList& Basliklar();
const QList<int>& Genislikler();

// The rows (code, name) of every unit with a code, from the given lower
// bounds on; a bound is left out when it is blank. Codes compare as text.
QList<QStringList> Liste(Veritabani& genel, const QString& kodSiniri, const QString& adSiniri, Sira sira);

// The next code: one above the value of the text maximum of the codes, so
// that once "10" exists it proposes 10 again ("9" is the maximum).
QString Sonk(Veritabani& genel);

// The row of the code as typed, both values trimmed.
std::optional<UniteSatiri> Getir(Veritabani& genel, const QString& kod);
bool Var(Veritabani& genel, const QString& kod);

// Renames the first row of the code as typed, or adds one. One transaction.
void Kaydet(Veritabani& genel, const QString& kod, const QString& ad);

// Deletes every row of the code.
void Sil(Veritabani& genel, const QString& kod);

// A step of the arrows: up adds one to a code that is not empty; down takes
// one off a code worth 1 or more. Otherwise the code stays as it is.
QString Adim(const QString& kod, bool yukari);

// Prints the list under "<institution> - Bilet Listesi       Tarih :" and
// ends the document.
void ListeYazdir(Yazici& p, const QString& kurum, const Izgara& izgara);

// The whole list, in code order, as the screen prints it when it opens.
void UniteListesiYazdir(Veritabani& genel, const QString& kurum, Yazici& p);

}
