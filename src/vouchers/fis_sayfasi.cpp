#include "fis_sayfasi.h"

#include "bicim.h"
#include "fis_toplam.h"
#include "form_cizimi.h"
#include "hata.h"
#include "kayit.h"

#include <utility>

namespace Ciz = FormCizimi;
using FormCizimi::Alan;
using FormCizimi::SolaEtiket;

namespace {

// Where the texts go, in twips from the origin of the printable area.
constexpr double BlokSatiri = 220;  // rows of the signature block
constexpr double BlokTabani = 12100;
constexpr double IlkSatirY = 4460;
constexpr double BasSatiriY = 1700 + 5 * BlokSatiri;  // İşlem türü, nereden, kime, nereye
constexpr double SutunX[] = {1, 350, 1600, 3660, 6620, 7260, 8540, 9250};
constexpr double ToplamX = 8650;
constexpr double GenelToplamX = 8450;
// The amount in words stands across this line and the next.
constexpr int HarfSatiri = 15;
constexpr double HarfYazmaY = 7930;
constexpr double MiktarToplamiY = 11410;

// The form. Its left edge stands just left of the origin, since the line
// numbers are printed at X 1.
constexpr double Sol = -30;
constexpr double Sag = 11100;
constexpr double Ust = 10;
constexpr double BaslikAlt = 636.5;  // between the voucher number and the first institution row
constexpr double KurumSatirlari[] = {BaslikAlt, 905, 1445, 1712};
constexpr double KodSol = 7300;  // the code's label, right of the institution rows' names
constexpr double KabulAlt = 2200;
constexpr double SayiSol = 7700;  // the numbers, right of the acceptance's dates
constexpr double BasEtiketAlt = 2560;
constexpr double BasSutunlari[] = {Sol, 2196, 5250, 7950, Sag};
constexpr double TabloUst = 3100;
// Rows kept clear under the last line: total, VAT and grand total.
constexpr int ToplamSatirlari = 4;
// The table's columns, each edge just left of where its texts begin.
constexpr double TabloSutunlari[] = {Sol, 340, 1590, 3640, 6600, 7240, 8520, 9230, Sag};
constexpr double ToplamSol = 8420;  // left of the grand total
constexpr double AltBolumOrtasi = 5450;

QString Sabit(const SabitSatiri& sabit, const char* alan)
{
    return sabit.value(QString::fromLatin1(alan));
}

bool Satirda(const FisEkrani& fis, int i)
{
    return !fis.Hucre(i, FisSutun::HesapKod).isEmpty();
}

double SatirY(int i)
{
    return IlkSatirY + (i - 1) * Ciz::SatirAdimi;
}

// The line under the last line with a code; line 1 when there is none.
double ToplamY(const FisEkrani& fis)
{
    int son = 0;
    for (int i = 1; i <= Ciz::SatirSayisi; ++i)
        if (Satirda(fis, i))
            son = i;
    return SatirY(son + 1);
}

// The rule above the line of the voucher standing at y.
double SatirCizgisi(double y)
{
    return Ciz::CizgiUstu(y, Ciz::SatirAdimi, 9);
}

// Under the totals of a voucher of 25 lines.
double AltBolumUst()
{
    return SatirCizgisi(SatirY(Ciz::SatirSayisi + 1)) + ToplamSatirlari * Ciz::SatirAdimi;
}

using Aralik = QPair<double, double>;

// The rows the totals box takes, from the line under the last line.
Aralik ToplamBandi(const FisEkrani& fis)
{
    const double ust = SatirCizgisi(ToplamY(fis));
    return {ust, ust + ToplamSatirlari * Ciz::SatirAdimi};
}

// Where the amount in words goes: its own place while the lines it stands
// across are empty, else the line under the last line, beside the total;
// under a voucher of 25 lines, the row of the box below the table that its
// label leaves free.
double HarfY(const FisEkrani& fis)
{
    if (!Satirda(fis, HarfSatiri) && !Satirda(fis, HarfSatiri + 1))
        return HarfYazmaY;
    const double y = ToplamY(fis);
    return y <= SatirY(Ciz::SatirSayisi) ? y : SatirY(Ciz::SatirSayisi + 2);
}

// The rows the table leaves without rules for the words: the two lines they
// stand across at their own place, one line anywhere else.
Aralik HarfBandi(const FisEkrani& fis)
{
    const double y = HarfY(fis);
    const double ust = SatirCizgisi(y);
    return {ust, ust + (y == HarfYazmaY ? 2 : 1) * Ciz::SatirAdimi};
}

bool Kesisir(const Aralik& a, const Aralik& b)
{
    return a.first < b.second && b.first < a.second;
}

double BlokCizgisi(int satir)
{
    return Ciz::CizgiUstu(BlokTabani + satir * BlokSatiri, BlokSatiri, 9);
}

double ImzaAlt()
{
    return BlokCizgisi(6) + 900;
}

void BaslikCiz(Zemin& z)
{
    Ciz::Kutu(z, Sol, Ust, 6000, BaslikAlt);
    Ciz::Etiket(z, QRectF(QPointF(Sol, Ust), QPointF(6000, BaslikAlt)), QStringLiteral("TAŞINIR İŞLEM FİŞİ"), 14,
                true);
    Ciz::Kutu(z, 6000, Ust, 8700, BaslikAlt);
    SolaEtiket(z, Alan(6000, Ust + 30, 8700, 230), QStringLiteral("Fiş Tarihi"), 7);
    Ciz::Kutu(z, 8700, Ust, Sag, BaslikAlt);
    SolaEtiket(z, Alan(8700, Ust + 30, Sag, 230), QStringLiteral("Fiş No"), 7);
}

void KurumCiz(Zemin& z)
{
    const QStringList adlar = {QStringLiteral("İli / İlçesi"), QStringLiteral("Harcama Birimi"),
                               QStringLiteral("Muhasebe Birimi")};
    for (int i = 0; i < 3; ++i) {
        const double ust = KurumSatirlari[i];
        const double alt = KurumSatirlari[i + 1];
        // Labels stay on the value's line however tall the box.
        const double yaziAlt = ust + 300;
        Ciz::Kutu(z, Sol, ust, 2150, alt);
        SolaEtiket(z, Alan(Sol, ust, 2150, yaziAlt), adlar[i], 8, true);
        Ciz::Kutu(z, 2150, ust, KodSol, alt);
        Ciz::Kutu(z, KodSol, ust, 7950, alt);
        SolaEtiket(z, Alan(KodSol, ust, 7950, yaziAlt), QStringLiteral("Kodu"), 8, true);
        Ciz::Kutu(z, 7950, ust, Sag, alt);
    }
}

void KabulCiz(Zemin& z)
{
    const double ust = KurumSatirlari[3];
    const double orta = ust + (KabulAlt - ust) / 2;
    Ciz::Kutu(z, Sol, ust, 4650, KabulAlt);
    SolaEtiket(z, Alan(Sol, ust, 4650, orta), QStringLiteral("Muayene ve Kabul Komisyonu Kararının"), 8, true);
    SolaEtiket(z, Alan(Sol, orta, 4650, KabulAlt), QStringLiteral("Dayanağı Belgenin"), 8, true);
    Ciz::Kutu(z, 4650, ust, SayiSol, KabulAlt);
    Ciz::Kutu(z, SayiSol, ust, Sag, KabulAlt);
    for (double y : {ust, orta}) {
        SolaEtiket(z, Alan(4650, y, 5600, y + (orta - ust)), QStringLiteral("Tarihi :"));
        SolaEtiket(z, Alan(SayiSol, y, 8400, y + (orta - ust)), QStringLiteral("Sayısı :"));
    }
}

void BasSatiriCiz(Zemin& z)
{
    const QList<double> sutunlar(std::begin(BasSutunlari), std::end(BasSutunlari));
    Ciz::Basliklar(z, sutunlar, KabulAlt, BasEtiketAlt,
                   {QStringLiteral("İşlem Türü"), QStringLiteral("Nereden Geldiği"),
                    QStringLiteral("Kime Verildiği"), QStringLiteral("Nereye Verildiği")});
    // The longest transaction name runs up to where the supplier's name
    // begins: no rule between them.
    Ciz::Kutu(z, Sol, BasEtiketAlt, BasSutunlari[2], TabloUst);
    Ciz::Kutu(z, BasSutunlari[2], BasEtiketAlt, BasSutunlari[3], TabloUst);
    Ciz::Kutu(z, BasSutunlari[3], BasEtiketAlt, Sag, TabloUst);
}

// What is left of a rule from `bas` to `son` where it crosses no gap.
QList<Aralik> Parcalar(double bas, double son, const QList<Aralik>& bosluklar)
{
    QList<Aralik> parcalar = {{bas, son}};
    for (const Aralik& bosluk : bosluklar) {
        QList<Aralik> kalan;
        for (const Aralik& p : parcalar) {
            if (bosluk.second <= p.first || bosluk.first >= p.second) {
                kalan.append(p);
                continue;
            }
            if (p.first < bosluk.first)
                kalan.append({p.first, bosluk.first});
            if (bosluk.second < p.second)
                kalan.append({bosluk.second, p.second});
        }
        parcalar = kalan;
    }
    return parcalar;
}

// The lines' table, and under it room for the totals of a voucher of 25
// lines. Two places break its grid: the amount in words, and the totals box
// under the last line, which reaches into the empty rows below it.
void TabloCiz(Zemin& z, const FisEkrani& fis)
{
    const QList<double> sutunlar(std::begin(TabloSutunlari), std::end(TabloSutunlari));
    const double govdeUst = SatirCizgisi(IlkSatirY);
    const double govdeAlt = govdeUst + Ciz::SatirSayisi * Ciz::SatirAdimi;
    Ciz::Basliklar(z, sutunlar, TabloUst, govdeUst,
                   {QStringLiteral("Sıra No"), QStringLiteral("Taşınır Kodu"), QStringLiteral("Sicil No"),
                    QStringLiteral("Taşınırın Adı / Özelliği"), QStringLiteral("Ölçü Birimi"),
                    QStringLiteral("Miktarı"), QStringLiteral("Birim Fiyatı"), QStringLiteral("Tutarı")});
    Ciz::Kutu(z, Sol, govdeUst, Sag, AltBolumUst());

    const Aralik toplam = ToplamBandi(fis);
    Ciz::Kutu(z, ToplamSol, toplam.first, Sag, toplam.second);
    const Aralik harf = HarfBandi(fis);

    for (qsizetype i = 1; i + 1 < sutunlar.size(); ++i) {
        const double x = sutunlar[i];
        const QList<Aralik> bosluklar = x > ToplamSol ? QList<Aralik>{harf, toplam} : QList<Aralik>{harf};
        for (const Aralik& p : Parcalar(govdeUst, govdeAlt, bosluklar))
            Ciz::Dikey(z, x, p.first, p.second);
    }
    for (int i = 1; i <= Ciz::SatirSayisi; ++i) {
        const double y = govdeUst + i * Ciz::SatirAdimi;
        if (y > harf.first && y < harf.second)
            continue;
        const bool toplamda = y > toplam.first && y < toplam.second;
        for (const Aralik& p : Parcalar(Sol, Sag, toplamda ? QList<Aralik>{{ToplamSol, Sag}} : QList<Aralik>{}))
            Ciz::Yatay(z, y, p.first, p.second);
    }
    Ciz::Kutu(z, Sol, govdeAlt, ToplamSol, AltBolumUst());
    SolaEtiket(z, Alan(Sol, govdeAlt, ToplamSol, govdeAlt + Ciz::SatirAdimi), QStringLiteral("Açıklama :"));
}

void ImzaCiz(Zemin& z)
{
    const double ozetUst = AltBolumUst();
    const double ozetAlt = BlokCizgisi(2);
    const double blokOrta = BlokCizgisi(4);
    const double blokAlt = BlokCizgisi(6);
    const double miktarAlt = MiktarToplamiY + 250;

    Ciz::Kutu(z, Sol, ozetUst, AltBolumOrtasi, ozetAlt);
    Ciz::Kutu(z, AltBolumOrtasi, ozetUst, Sag, ozetAlt);
    SolaEtiket(z, Alan(Sol, MiktarToplamiY, 2140, miktarAlt), QStringLiteral("Teslim Edilen Toplam"));
    SolaEtiket(z, Alan(AltBolumOrtasi, MiktarToplamiY, 7150, miktarAlt), QStringLiteral("Teslim Alınan Toplam"));
    SolaEtiket(z, Alan(Sol, miktarAlt, AltBolumOrtasi, ozetAlt),
               QStringLiteral("Yukarıda gösterilen taşınırlar teslim edilmiştir."));
    SolaEtiket(z, Alan(AltBolumOrtasi, miktarAlt, Sag, ozetAlt),
               QStringLiteral("Yukarıda gösterilen taşınırlar teslim alınmıştır."));

    // Each signer's name and title in the rows of the block; the
    // signatures go under the block, where the page has room for them.
    struct Imzaci
    {
        const char* gorev;
        double sol, etiket, deger, sag, ust, alt;
        int satir;
        double imzaSol, imzaSag;
    };
    const Imzaci imzacilar[] = {
        {"Teslim Eden", Sol, 1050, 1770, AltBolumOrtasi, ozetAlt, blokOrta, 2, Sol, 2710},
        {"Taşınır Kayıt ve Kontrol Yetkilisi", Sol, 1050, 1770, AltBolumOrtasi, blokOrta, blokAlt, 2, 2710,
         AltBolumOrtasi},
        {"Teslim Alan", AltBolumOrtasi, 6250, 7020, Sag, ozetAlt, blokAlt, 4, AltBolumOrtasi, Sag},
    };
    for (const Imzaci& k : imzacilar) {
        const QString gorev = QString::fromUtf8(k.gorev);
        Ciz::Kutu(z, k.sol, k.ust, k.etiket, k.alt);
        Ciz::Etiket(z, Alan(k.sol, k.ust, k.etiket, k.alt, 25), gorev, 6.5, true);
        Ciz::Kutu(z, k.etiket, k.ust, k.deger, k.alt);
        Ciz::Kutu(z, k.deger, k.ust, k.sag, k.alt);
        const double adim = (k.alt - k.ust) / k.satir;
        for (int r = 0; r < k.satir; ++r)
            SolaEtiket(z, Alan(k.etiket, k.ust + r * adim, k.deger, k.ust + (r + 1) * adim, 25),
                       r % 2 ? QStringLiteral("Unvanı") : QStringLiteral("Adı Soyadı"), 6.5);
        Ciz::Kutu(z, k.imzaSol, blokAlt, k.imzaSag, ImzaAlt());
        SolaEtiket(z, Alan(k.imzaSol, blokAlt, k.imzaSag, blokAlt + BlokSatiri), gorev + QStringLiteral(" İmza"),
                   6.5);
    }
}

Zemin FisZemini(const FisEkrani& fis)
{
    Zemin z;
    BaslikCiz(z);
    KurumCiz(z);
    KabulCiz(z);
    BasSatiriCiz(z);
    TabloCiz(z, fis);
    ImzaCiz(z);
    Ciz::Kutu(z, Sol, Ust, Sag, ImzaAlt(), Ciz::CerceveCizgisi);
    return z;
}

void SatirlariYaz(Sayfa& sayfa, const FisEkrani& fis)
{
    for (int j = 0; j < 8; ++j) {
        const double x = SutunX[j];
        for (int i = 1; i <= Ciz::SatirSayisi; ++i) {
            if (!Satirda(fis, i))
                continue;
            QString metin;
            switch (j) {
            case 0:
                metin = QString::number(i);
                break;
            case 1:
                metin = fis.Hucre(i, FisSutun::HesapKod).left(14);
                break;
            case 2:
                if (fis.Hucre(i, FisSutun::HesapKod).left(3) != u"150")
                    metin = FisYazimiKurali::SicilYazisi(fis, i, i);
                break;
            case 3:
                metin = fis.Hucre(i, FisSutun::Ozellik).left(27);
                break;
            case 4:
                metin = fis.Hucre(i, FisSutun::Birimi).left(7);
                break;
            case 5:
                metin = SayiMetni(FisYazimiKurali::Miktar(fis, i));
                break;
            case 6:
                metin = SayiMetni(Val(fis.Hucre(i, FisSutun::BirimFiyat)));
                break;
            default: {
                QVariant tutar = Val(fis.Hucre(i, FisSutun::BirimFiyat)) * FisYazimiKurali::Miktar(fis, i);
                metin = Tutar2Yaz(tutar, 15);
            }
            }
            Ciz::Sigdir(sayfa, x, SatirY(i), metin, 9, TabloSutunlari[j + 1]);
        }
    }
}

}

Sayfa FisSayfasi(const FisYazimi& yazim, const SabitSatiri& sabit)
{
    const FisEkrani& fis = yazim.fis;
    Sayfa sayfa;
    sayfa.zemin = FisZemini(fis);

    Ciz::Sigdir(sayfa, 2200, 640, Sabit(sabit, "ilAdi"), 10, KodSol);
    Ciz::Sigdir(sayfa, 8000, 640, Sabit(sabit, "ilKod"), 10, Sag);
    Ciz::Sigdir(sayfa, 2200, 940, Sabit(sabit, "KurumAdi"), 10, KodSol);
    Ciz::Sigdir(sayfa, 8000, 940, Sabit(sabit, "KurumKod"), 10, Sag);
    Ciz::Sigdir(sayfa, 2200, 1470, Sabit(sabit, "MuhasebeBirimiAdi"), 10, KodSol);
    Ciz::Sigdir(sayfa, 8000, 1470, Sabit(sabit, "MuhasebeBirimiKod"), 10, Sag);

    const auto blok = [](int satir) { return BlokTabani + satir * BlokSatiri; };
    Ciz::Sigdir(sayfa, 1800, blok(2), Sabit(sabit, "AyniyatMemuru2"), 9, AltBolumOrtasi);
    Ciz::Sigdir(sayfa, 1800, blok(3), Sabit(sabit, "AyniyatMemuru1"), 9, AltBolumOrtasi);
    Ciz::Sigdir(sayfa, 7050, blok(2), Sabit(sabit, "AmbarMemurAd"), 9, Sag);
    Ciz::Sigdir(sayfa, 7050, blok(3), Sabit(sabit, "AmbarMemur"), 9, Sag);
    Ciz::Sigdir(sayfa, 1800, blok(4), Sabit(sabit, "AmbarMemurAd"), 9, AltBolumOrtasi);
    Ciz::Sigdir(sayfa, 1800, blok(5), Sabit(sabit, "AmbarMemur"), 9, AltBolumOrtasi);
    Ciz::Sigdir(sayfa, 7800, blok(4), fis.TeslimAlan, 9, Sag);

    Ciz::Yaz(sayfa, 8800, 320, FisYazimiKurali::CinsIsareti(fis.FCins, fis) + u'-' + fis.FisNo, 14);

    Ciz::Yaz(sayfa, 6700, 370, fis.Tarih, 11);
    Ciz::Yaz(sayfa, 5600, 1730, fis.KabulTarih, 11);
    Ciz::Sigdir(sayfa, 8400, 1730, fis.KabulSayi, 11, Sag);
    Ciz::Yaz(sayfa, 5600, 1730 + BlokSatiri, fis.Hucre(1, FisSutun::BelgeTarih), 11);
    Ciz::Sigdir(sayfa, 8400, 1730 + BlokSatiri, fis.BelgeSayi, 11, Sag);

    Ciz::Yaz(sayfa, 150, BasSatiriY, yazim.IslemAd, 11);
    if (fis.FCins == u"G")
        Ciz::Sigdir(sayfa, 2200, BasSatiriY, fis.NeredenGeldigi.left(24), 11, BasSutunlari[2]);
    Ciz::Sigdir(sayfa, 5300, BasSatiriY, fis.Hucre(1, FisSutun::KimeVerildigi), 11, BasSutunlari[3]);
    if (yazim.UniteAd2 != u"false")
        Ciz::Sigdir(sayfa, 8000, BasSatiriY, yazim.UniteAd2, 11, Sag);

    Ciz::Yaz(sayfa, 500, 9750, yazim.ACIKLAMA_B, 9);
    // Beside the totals box the words end where it begins.
    const double harfSag = Kesisir(HarfBandi(fis), ToplamBandi(fis)) ? ToplamSol : Sag;
    Ciz::Sigdir(sayfa, 300, HarfY(fis), yazim.HarfYazma, 9, harfSag);

    SatirlariYaz(sayfa, fis);

    QString tutar = yazim.Text3;
    Ciz::Sigdir(sayfa, ToplamX, ToplamY(fis), QStringLiteral("    Toplam : ") + SagaDaya(tutar, 15), 9, Sag);

    // A quantity of many digits would run into its label: it moves on past it.
    for (const auto& [etiketX, miktarX] : {std::pair(2140.0, 2470.0), std::pair(7150.0, 7480.0)}) {
        QString miktar = yazim.Text2;
        SagaDaya(miktar, 15);
        Ciz::Yaz(sayfa, etiketX, MiktarToplamiY, QStringLiteral("Miktar"), 10, true);
        Ciz::Yaz(sayfa, Ciz::Ardindan(sayfa.yazilar.last(), miktarX, miktar, 10, true), MiktarToplamiY, miktar, 10,
                 true);
    }
    return sayfa;
}

void FisKdvYaz(Sayfa& sayfa, const FisYazimi& yazim, const QString& kdvTutari)
{
    const std::optional<double> kdv = SayiDegeri(kdvTutari);
    if (!kdv)
        throw Hata(QStringLiteral("KDV Tutarı bir sayı olmalı: ") + kdvTutari);

    const double kdvY = ToplamY(yazim.fis) + Ciz::SatirAdimi;
    Ciz::Sil(sayfa, ToplamX, kdvY, 9);
    Ciz::Sigdir(sayfa, ToplamX, kdvY, FisYazimiKurali::KdvSatiri(FisToplam::Yuvarla(*kdv, 2)), 9, Sag);

    const double genelY = kdvY + 2 * BlokSatiri;
    Ciz::Sil(sayfa, GenelToplamX, genelY, 10, true);
    Ciz::Sigdir(sayfa, GenelToplamX, genelY, FisYazimiKurali::GenelToplamSatiri(yazim.Text3, kdvTutari), 10, Sag,
                true);
}
