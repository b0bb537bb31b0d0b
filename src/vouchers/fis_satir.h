#pragma once

#include "fis_sutun.h"
#include "izgara_modeli.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class Izgara;
class Veritabani;
class Yazici;

// The line entry of the voucher screen apart from its widgets: the grid's
// columns, where Enter leads, the copy-down and the row delete, the look-ups
// behind the editors over the cells, and the movement list of a line.
namespace FisSatir {

// A voucher page prints 25 lines; the grid holds no more.
inline constexpr int SatirSayisi = 25;
// The last column that Enter serves.
inline constexpr int SonSutun = FisSutun::KDV;

// The grid's columns as it is set up: caption, width, editor and hint, in
// the order of FisSutun.
QList<IzgaraSutunu> Sutunlar();

struct Hucre
{
    int satir;
    int sutun;
};

struct EnterSonucu
{
    Hucre hucre;
    // What lands in the date column on the way; null when nothing does.
    QString tarih;
};

// Enter pressed on the grid itself over a column without a combo or a date:
// two columns a step up to column 10, one beyond, and past the last working
// column on to the next row. Leaving the price column, a price of exactly
// "2" to "8" names the account of the line in the date column. The row may
// come out past the grid's last.
EnterSonucu GridEnter(Hucre hucre, const QString& birimFiyat);

// Insert: the cell of column `beraber` goes down to the row below whatever
// it holds; the current cell, when it is not empty, goes with it. True when
// the current row moves one down. The row below must exist.
bool SatirKopyala(QList<QStringList>& satirlar, Hucre hucre, int beraber);
// The voucher's Insert: the tax rate goes down along from the class columns.
bool AsagiKopyala(QList<QStringList>& satirlar, Hucre hucre);
// Removes the row; the rows under it move up and an empty one comes last.
void SatirSil(QList<QStringList>& satirlar, int satir);

struct Sinif
{
    QString HesapKod;
    QString MalzAdi;
    QString KDV1;
    QString Birimi;
};

// The look-up lists: "code name" by name, the class names, the unit names.
QStringList HesKodListesi(Veritabani& genel);
QStringList SinifAdlari(Veritabani& genel);
QStringList UniteAdlari(Veritabani& genel);
// The names typed before in the head of vouchers of the kind.
QStringList TeslimAlanlar(Veritabani& ayniyat, const QString& fcins);
QStringList NeredenGeldiler(Veritabani& ayniyat, const QString& fcins);

// The class picked from the code list, by the first 13 characters of the
// item; the values trimmed.
std::optional<Sinif> KodlaSinif(Veritabani& genel, const QString& secilen);
// The class picked from the name list (no unit).
std::optional<Sinif> AdlaSinif(Veritabani& genel, const QString& ad);
// The class name of a typed code.
std::optional<QString> MalzAdGetir(Veritabani& genel, const QString& hesapKod);
// The code of a picked unit name.
std::optional<QString> UniteKodu(Veritabani& genel, const QString& uniteAd);

// The lines of all vouchers with one code or one description, and what came
// in, went out and is left (Val of the quantity columns).
struct HareketListesi
{
    QList<QStringList> satirlar;
    double Gelen = 0;
    double Cikan = 0;
    double Kalan = 0;
};

QStringList HareketBasliklari();
QList<int> HareketGenislikleri();
// Written-off lines are left out.
HareketListesi HesapHareketListe(Veritabani& ayniyat, const QString& hesapKod);
// Written-off lines are counted.
HareketListesi OzellikHareketListe(Veritabani& ayniyat, const QString& ozellik);

// The printed movement list under the line's code and name and the year of
// the voucher date, with the total text at the foot.
void HareketYazdir(Yazici& p, const QString& hesapKod, const QString& malzAdi, const QString& fisTarihi,
                   const Izgara& liste, const QString& toplam);

}

// The cells of the voucher screen's grid: 25 lines of the columns above.
class FisModeli : public IzgaraModeli
{
    Q_OBJECT

public:
    explicit FisModeli(QObject* ebeveyn = nullptr);
};
