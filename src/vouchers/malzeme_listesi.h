#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <optional>

class Izgara;
class Veritabani;
class Yazici;

// The list of voucher lines over all vouchers ("Malzeme Liste"): what it
// selects by the screen's filters and how it is printed.
namespace MalzemeListesi {

enum class Hareket { Tumu, Gelen, Cikan };
// The sort columns in the order of the options Op1 to Op8.
enum class Sira { FisNo, Tarih, MalzAdi, BirimFiyat, HesapKod, Ozellik, Unite, KimeVerildigi };

struct Kosullar
{
    QDate Tarih;
    QDate Tarih1;
    Hareket hareket = Hareket::Tumu;
    bool HasarCheck = false;
    bool Option1 = false;  // "HasarKayıtYok"
    bool Option2 = false;  // "Hasarsız"
    // The filter boxes; an empty box filters nothing.
    QString FisNo;
    QString BirimFiyat;
    QString Unite;
    QString KimeVerildigi;
    QString Ozellik;
    QString HesapKod;
    // The exact-match combos.
    QString Ozellik4;
    QString NeredenGeldigi;
    Sira sira = Sira::FisNo;
    bool artan = true;
};

struct Komut
{
    QString sql;
    QVariantList degerler;
};

// The statement of the list on FIS (AYNIYAT.MDB). Its first column is the
// empty text, filled with the class name for the current row only.
Komut Liste(const Kosullar& k);

QStringList Basliklar();
QList<int> Genislikler();

// The class name of a code from URUN_K; empty when there is none.
QString SinifAdi(Veritabani& genel, const QString& hesapKod);

// The totals of one description as the one-row grid shows them:
// " Gelen :", in, "   Çıkan :", out, "   Kalan :", in less out.
QStringList Toplamlar(Veritabani& ayniyat, const QString& ozellik);

// The items of the exact-match combos; an empty result gives the one item
// "  Kayıt Bulunamadı .. ".
QStringList Ozellikler(Veritabani& ayniyat);
QStringList NeredenGeldiler(Veritabani& ayniyat);

// The grid's font size from the YaziBoy box; nothing when it is no size.
std::optional<int> YaziBoyu(const QString& metin);

void Yazdir(Yazici& p, const Izgara& liste);

}
