#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class Veritabani;

// The lists the filter boxes of the report screens offer, for the side of
// the code plan that Hangi names. A value equal to the one before it in
// the ordered rows is given once.
namespace RaporListeleri {

struct KodAd
{
    QString kod;
    QString ad;
};

// The recipients and the descriptions of the side's voucher lines.
QStringList KimeVerildigi(Veritabani& ayniyat, const QString& hangi);
QStringList Ozellik(Veritabani& ayniyat, const QString& hangi);

// The side's classes in code order, for the code range.
QList<KodAd> HesapKodlari(Veritabani& genel, const QString& hangi);
// Every class of both sides in code order.
QList<KodAd> TumHesapKodlari(Veritabani& genel);

// The units by name.
QList<KodAd> Uniteler(Veritabani& genel);

// The side's material names that start with what was typed, empty names
// left out.
QStringList Malzemeler(Veritabani& genel, const QString& hangi, const QString& onEk);

// The names, for a box that offers names.
QStringList Adlar(const QList<KodAd>& liste);
// "kod  ad" lines, for a box that offers codes with their names.
QStringList KodluAdlar(const QList<KodAd>& liste);
// The code of such a line: what stands before its name.
QString Kodu(const QString& kodluAd);

}
