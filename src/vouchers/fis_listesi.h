#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantList>

class Izgara;
class Yazici;

// The voucher list's statement over the heads of one kind: a lower bound on
// the number or one text filter, a date frame, and the sort order.
namespace FisListesi {

// The boxes of the list screen. A date that is not set is invalid.
struct Suzgec
{
    QString FisNo;
    QString TeslimAlan;
    QString Ozellik;
    QString BelgeSayi;
    QString NeredenGeldigi;
    QDate Tarih;
    QDate Tarih1;
    QString FCins1;
    QString SiraSutunu = QStringLiteral("FisNo");
    // Check1: ascending when ticked.
    bool Artan = false;
};

struct Komut
{
    QString sql;
    QVariantList degerler;
};

// The sort column of the option Op1 to Op7; Op6 has none and keeps the one
// in force.
QString SiraSutunu(int secenek, const QString& onceki);

// The statement of the list on FIS_B in AYNIYAT.MDB.
Komut Sorgu(const Suzgec& suzgec);

// Headings and widths (twips) of the grid; the kind column stays hidden.
const QStringList& Basliklar();
const QList<int>& Genislikler();

// Prints the grid under the list's heading and ends the document.
void ListeYazdir(Yazici& p, const Izgara& izgara);

}
