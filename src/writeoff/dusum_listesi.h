#pragma once

#include "fis_listesi.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class Izgara;
class Veritabani;
class Yazici;

// The two lists of the write-off screen: "Dayanıklı-Demirbaş Malzeme Liste"
// over the durable lines of FIS that are not written off yet, and "Düşüm
// Tutanak Listesi" over the write-off heads. Both start from a lower bound
// on the number; each filled text box replaces the condition before it, so
// that the last one filled in the order of Suzgec alone acts.
namespace DusumListesi {

// The boxes of a list; a box the list has not stays empty. A date that is
// not set is invalid.
struct Suzgec
{
    QString FisNo;
    QString TeslimAlan;          // material list: who the goods were given to
    QString KomisyonBaskaniAdi;  // write-off list
    QString MalzAdi;             // write-off list; the material list takes it and filters nothing
    QString Ozellik;
    QString Unite;
    QString HesapKod;            // material list
    QDate Tarih;
    QDate Tarih1;
    // The sort option Op1, Op2, ...
    int Secenek = 1;
};

// The end date a list opens with: the last day of the working year when
// that year is over, else today's day and month in it.
QDate BitisTarihi(const QString& calisYil);

// The material list's statement on FIS: class 150 is never listed, and a
// line shows only while its FCinss holds a value other than "D" (a Null one
// neither).
FisListesi::Komut MalzemeSorgusu(const Suzgec& s);
const QStringList& MalzemeBasliklari();
const QList<int>& MalzemeGenislikleri();
// The cells a picked row of the material list gives the write-off grid's
// current row, by DusumSutun column; the class name comes from GENEL.MDB.
// The quantity is left to the user.
QMap<int, QString> SecilenSatir(Veritabani& genel, const QStringList& satir);
// Those cells as a whole grid row, the others empty.
QStringList GridSatiri(const QMap<int, QString>& hucreler);
// The material list under its two title lines, in the small print, the
// document ended.
void MalzemeYazdir(Yazici& p, const Izgara& izgara);

// The write-off heads as the write-off list shows them.
QList<QStringList> DusulenSatirlari(Veritabani& ayniyat, const Suzgec& s);
const QStringList& DusulenBasliklari();
const QList<int>& DusulenGenislikleri();
// The column of the write-off number.
inline constexpr int DusulenFisNoSutunu = 3;

}
