#pragma once

#include "fis_satir.h"
#include "izgara_modeli.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class Veri;
class Veritabani;
struct DusumYazimi;

// The columns of the write-off grid, counted from 0.
namespace DusumSutun {
enum Sutun : int { Unite, HesapKod, MalzAdi, Ozellik, Birimi, Miktar, BirimFiyat, Tarih, FisNo, Yil, Satir, SicilNo,
                   Yedek12, Yedek13, Yedek14, KDV, Yedek16, Sayi };
}

// The write-off screen's head and grid, as FisEkrani is for the voucher.
struct DusumEkrani
{
    QString FisNo;
    QString Tarih;
    QString CalisYil;
    QString CalisAy;
    QString KomisyonBaskaniAdi;
    QString KomisyonBaskaniUnvani;
    QString UyeAdi;
    QString UyeUnvani;
    QString FCins;  // always empty on this screen
    // Grid rows 1 upward, DusumSutun::Sayi cells each.
    QList<QStringList> Satirlar;

    QString Hucre(int satir, int sutun) const;
};

enum class DusumSonucu {
    Kaydedildi,
    FisNoYok,    // "Fiş No Yazınız. "
    Vazgecildi,  // No to the working-month question
};

// A write-off is one head in DUSUM_B and the marks it leaves on the entry
// lines of FIS that its grid rows name: the written-off quantity in
// `Cikan`, its number and date in `KabulSayi` and `KabulTarih`, and `FCinss`
// "D". It has no lines of its own; its rows are found again by those marks.
namespace DusumKayit {

// The grid's columns as it is set up: caption, width, editor and hint, in
// the order of DusumSutun.
QList<IzgaraSutunu> Sutunlar();

// The next number of the working year.
int Sonk(Veritabani& ayniyat, const QString& yil);

// Saves the head (number and working year find it) and marks the line every
// grid row with a code names, in one transaction. The number must be a whole
// positive number. The working-month question is asked through the callback
// as the voucher's save asks it. A row that does not name an existing line
// throws Hata and nothing is written.
DusumSonucu Kaydet(Veritabani& ayniyat, const DusumEkrani& d, const std::function<bool()>& aySorusu);

// Fills the head from the stored write-off of the working year; false when
// there is none.
bool Getir(Veritabani& ayniyat, DusumEkrani& d);

// The marked lines of the write-off as grid rows, by line number, the class
// name looked up in GENEL.MDB. Found by the mark alone: the number and the
// year of the write-off's date.
QList<QStringList> Guncelle(Veritabani& ayniyat, Veritabani& genel, const QString& fisNo, const QString& yil);

// Deletes the heads of the number and kind, of every year. The marks stay on
// the lines, and the goods stay out of the stock.
void Sil(Veritabani& ayniyat, const DusumEkrani& d);

struct AraToplamlar
{
    QString Text2;  // quantity
    QString Text3;  // amount
};

// The running figures under the grid, over the rows with a quantity and a
// price.
AraToplamlar AraToplam(const DusumEkrani& d);

// The VAT of grid rows 1 to 25 as the voucher's is worked out: quantity
// (column 5) times price (column 6), divided by 100, times the rate (column
// 15), each by plain Val, over the rows with a quantity. A row without a
// rate adds nothing.
double KdvToplam(const DusumEkrani& d);

// What the print screen takes, from a write-off of the year as it is saved:
// its head, its marked lines as grid rows and the totals of its screen.
// Throws Hata when there is no such write-off, VeriHatasi when the data
// cannot be read.
DusumYazimi KayittanYazim(Veri& veri, const QString& fisNo, const QString& yil);

// Every line of FIS with the code, written-off ones too: description, price,
// voucher number, code, date and unit. Nothing is summed.
FisSatir::HareketListesi HesapHareketListe(Veritabani& ayniyat, const QString& hesapKod);
QStringList HareketBasliklari();
QList<int> HareketGenislikleri();

// The values earlier write-offs of the kind hold in one commission field
// (`KomisyonBaskaniAdi`, `KomisyonBaskaniUnvani`, `UyeAdi`, `UyeUnvani`),
// trimmed, in the order of the file; a value equal to the one before is left
// out. Another field name throws Hata.
QStringList KomisyonDegerleri(Veritabani& ayniyat, const QString& alan, const QString& fcins);

}
