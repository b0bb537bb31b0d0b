#pragma once

#include "fis_sutun.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

class Veritabani;

// A cell of grid rows held from row 1 upward; a row or column beyond them
// reads empty.
QString SatirHucresi(const QList<QStringList>& satirlar, int satir, int sutun);

// The voucher as the voucher screen holds it: the head's controls and the
// grid's cells. The record operations read it and, where the save fills a
// fallback, write back into it as the screen's controls would show.
struct FisEkrani
{
    QString FisNo;
    QString Tarih;
    QString FCins;  // the key: "G" entry, "C" issue
    QString Hangi;  // how the quantity columns are read
    QString CalisYil;
    QString CalisAy;
    QString KabulSayi;
    QString KabulTarih;
    QString TeslimAlan;
    QString NeredenGeldigi;
    QString BelgeTur;
    QString BelgeSayi;
    // Grid rows 1 upward; each row holds FisSutun::Sayi cells.
    QList<QStringList> Satirlar;

    QString Hucre(int satir, int sutun) const;
    void HucreYaz(int satir, int sutun, const QString& metin);
};

// What a fetch of the lines brings back besides the cells: the names the
// screen shows under the grid, by row.
struct FisSatirlari
{
    QList<QStringList> hucreler;
    QStringList islemAdlari;
    QStringList uniteAdlari;
};

enum class KayitSonucu {
    Kaydedildi,
    FisNoYok,     // "Fiş No Yazınız. "
    IlkSatirBos,  // nothing said
    Vazgecildi,   // No to the working-month question
};

namespace FisKayit {

// The kinds of transaction, code 1 to 19; another code has no name.
QString IslemAdi(int kod);
const QStringList& IslemTurleri();

// A whole positive number written in digits alone, blanks around it
// allowed; nothing for any other text: "12a" would read as 12 by Val and
// reach another voucher.
std::optional<qint64> PozitifTamSayi(const QString& metin);
// The voucher number as the key of its rows; any other text is refused
// with Hata.
qint64 FisNoSayisi(const QString& fisNo);

// The working-month question, asked through the callback when today's month
// differs from CalisAy; true when the save goes on.
bool AyOnayi(const QString& calisAy, const std::function<bool()>& aySorusu);

// The next number for the kind in the working year.
int EnSon(Veritabani& ayniyat, const QString& fcins, const QString& yil);

// Saves head and lines in one transaction. The working-month question is
// asked through the callback when today's month differs from CalisAy; false
// ends the save. A database failure throws VeriHatasi and leaves the
// voucher as it was.
// Runs inside the caller's transaction if one is open.
KayitSonucu Kaydet(Veritabani& ayniyat, FisEkrani& fis, const std::function<bool()>& aySorusu);

// Fills the head from the stored voucher of the working year; false when it
// does not exist.
bool Getir(Veritabani& ayniyat, FisEkrani& fis);

// The lines of the voucher in the grid's column order, with the class name
// in column 2.
FisSatirlari SatirlariGetir(Veritabani& ayniyat, Veritabani& genel, const QString& fisNo, const QString& fcins,
                            const QString& yil);

// Deletes head and lines; the year comes from the date on screen.
void Sil(Veritabani& ayniyat, const FisEkrani& fis);

// Empties the screen for a new voucher; the number stays.
void Temizle(FisEkrani& fis);

// The register number of a line: the code's digits, the year, the voucher
// number and a part that is always 0.
QString SicilNo(const QString& hesapKod, const QString& yil, const QString& fisNo);

}
