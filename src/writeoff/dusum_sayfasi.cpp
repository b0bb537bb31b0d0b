#include "dusum_sayfasi.h"

#include "fis_yazimi.h"
#include "form_cizimi.h"
#include "kayit.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
namespace Ciz = FormCizimi;
using FormCizimi::Alan;
using FormCizimi::SolaEtiket;

namespace {

// Twips from the printable area's origin. The form is 15000 high; its boxes
// are laid out around the places where the texts go.
constexpr double Sol = 20;
constexpr double Sag = 11150;
constexpr double Ust = 20;
constexpr double Alt = 14990;

constexpr double BelgeSol = 8280;  // the date and the number, right of the title
constexpr double TarihAlt = 353;   // between the date and the number
constexpr double TarihSol = 9180;  // the date, right of its label
constexpr double NoSol = 9380;     // the number, right of its label
constexpr double BaslikAlt = 697;
constexpr double KurumSatirlari[] = {BaslikAlt, 1000, 1350, 1700};
constexpr double KurumY[] = {720, 1070, 1420};
constexpr double AdSol = 2480;         // the names, right of their labels
constexpr double KodEtiketSol = 7600;  // the code's label, right of the names
constexpr double KodSol = 8380;

constexpr double AltBaslikAlt = 2150;  // the table's caption, over its headings
constexpr double IlkSatirY = 2840;
// The table's columns, each edge just left of where its texts begin.
constexpr double SutunX[] = {80, 360, 2200, 5400, 6000, 7300, 8360};
constexpr double TabloSutunlari[] = {Sol, 340, 2180, 5380, 5980, 7280, 8340, Sag};
// The rows of the form. The quantity total and the mark stand on the lines
// after them; the rows below a write-off uses as well, and push those lines
// down.
constexpr int FormSatiri = 21;
constexpr double MiktarToplamiX = 6950;
constexpr double MiktarToplamiY = 7900;
constexpr double IsaretX = 750;
constexpr double IsaretY = 8400;
// The tax lines under the last row. At X 10000 they would leave the form:
// they stand in the amount column.
constexpr double VergiX = SutunX[6];

constexpr double AciklamaAlt = 10500;
constexpr double TeklifUst = 11300;
constexpr double TeklifTarihiY = 11400;
constexpr double TeklifIsimUst = 11690;  // over the store officer's name
constexpr double KomisyonUst = 12350;
constexpr double KomisyonIsimUst = 12650;
constexpr double KomisyonTarihiY = 13740;
constexpr double OnayUst = 13990;
constexpr double OnayIsimUst = 14350;
constexpr double KomisyonSutunlari[] = {Sol, 4630, 7680, Sag};
constexpr double OnayOrtasi = 5560;  // between the spending officer and the senior manager
constexpr double ImzaAdimi = 210;    // from a name to the title under it
constexpr double UstYoneticiY = 14670;

bool Satirda(const DusumEkrani& d, int i)
{
    return !d.Hucre(i, DusumSutun::HesapKod).isEmpty();
}

double SatirY(int i)
{
    return IlkSatirY + (i - 1) * Ciz::SatirAdimi;
}

// The rule above the row of the table standing at y.
double SatirCizgisi(double y)
{
    return Ciz::CizgiUstu(y, Ciz::SatirAdimi, 9);
}

// The last of rows 1 to 25 with a code; 0 when there is none.
int SonSatir(const DusumEkrani& d)
{
    int son = 0;
    for (int i = 1; i <= Ciz::SatirSayisi; ++i)
        if (Satirda(d, i))
            son = i;
    return son;
}

int TabloSatiri(const DusumEkrani& d)
{
    return std::max(FormSatiri, SonSatir(d));
}

// How far the lines under the table go down with the rows it grows by.
double Kayma(const DusumEkrani& d)
{
    return (TabloSatiri(d) - FormSatiri) * Ciz::SatirAdimi;
}

// Under the last row of the table: the quantity total, then the mark, two
// rows each.
double TabloAlt(const DusumEkrani& d)
{
    return SatirCizgisi(SatirY(TabloSatiri(d) + 1));
}

double ToplamAlt(const DusumEkrani& d)
{
    return TabloAlt(d) + 2 * Ciz::SatirAdimi;
}

double IsaretAlt(const DusumEkrani& d)
{
    return ToplamAlt(d) + 2 * Ciz::SatirAdimi;
}

// The line of the VAT: the one after the last row with a code, in the table
// or under it.
double VergiY(const DusumEkrani& d)
{
    return SatirY(SonSatir(d) + 1);
}

// The senior manager's name and title, unless the title would then run past
// the bottom of the form (and touch its frame): then both go up by what it
// lacks.
double UstYoneticiAdiY()
{
    const QFontMetricsF& olcu = YaziOlcusu(9, false);
    constexpr double pay = 30;
    const double enAlt = Alt - Ciz::CerceveCizgisi / 2 - pay - (olcu.ascent() + olcu.descent()) - ImzaAdimi;
    return std::min(UstYoneticiY, std::floor(enAlt));
}

// A label in a box of its own.
void Baslik(Zemin& z, double sol, double ust, double sag, double alt, const QString& metin, double punto = 8)
{
    Ciz::Basliklar(z, {sol, sag}, ust, alt, {metin}, punto);
}

void BasCiz(Zemin& z)
{
    Baslik(z, Sol, Ust, BelgeSol, BaslikAlt, u"KAYITTAN DÜŞME TEKLİF VE ONAY TUTANAĞI"_s, 13);
    Baslik(z, BelgeSol, Ust, TarihSol, TarihAlt, u"Tarih"_s);
    Ciz::Kutu(z, TarihSol, Ust, Sag, TarihAlt);
    Baslik(z, BelgeSol, TarihAlt, NoSol, BaslikAlt, u"Tutanak No"_s);
    Ciz::Kutu(z, NoSol, TarihAlt, Sag, BaslikAlt);

    const QString adlar[] = {u"İli / İlçesi"_s, u"Harcama Birimi"_s, u"Muhasebe Birimi"_s};
    for (int i = 0; i < 3; ++i) {
        const double ust = KurumSatirlari[i];
        const double alt = KurumSatirlari[i + 1];
        Ciz::Kutu(z, Sol, ust, AdSol, alt);
        SolaEtiket(z, Alan(Sol, ust, AdSol, alt), adlar[i], 8, true);
        Ciz::Kutu(z, AdSol, ust, KodEtiketSol, alt);
        Baslik(z, KodEtiketSol, ust, KodSol, alt, u"Kodu"_s);
        Ciz::Kutu(z, KodSol, ust, Sag, alt);
    }
}

void TabloCiz(Zemin& z, const DusumEkrani& d)
{
    const QList<double> sutunlar(std::begin(TabloSutunlari), std::end(TabloSutunlari));
    const double govdeUst = SatirCizgisi(IlkSatirY);
    Baslik(z, Sol, KurumSatirlari[3], Sag, AltBaslikAlt, u"KAYITTAN DÜŞÜLMESİ TEKLİF EDİLEN TAŞINIRLAR"_s, 9);
    // The running number's column is narrow for the usual size.
    Ciz::Basliklar(z, sutunlar.mid(0, 2), AltBaslikAlt, govdeUst, {u"Sıra No"_s}, 6.5);
    Ciz::Basliklar(z, sutunlar.mid(1), AltBaslikAlt, govdeUst,
                   {u"Sicil No"_s, u"Taşınırın Adı / Özelliği"_s, u"Ölçü Birimi"_s, u"Miktarı"_s,
                    u"Birim Fiyatı"_s, u"Tutarı"_s});
    Ciz::Govde(z, sutunlar, govdeUst, Ciz::SatirAdimi, TabloSatiri(d));

    // The totals: the quantity's beside its label, the tax lines of a
    // write-off of many rows in the amount column's place.
    const double ust = TabloAlt(d);
    const double alt = ToplamAlt(d);
    Baslik(z, Sol, ust, TabloSutunlari[4], alt, u"TOPLAM"_s);
    Ciz::Kutu(z, TabloSutunlari[4], ust, TabloSutunlari[6], alt);
    Ciz::Kutu(z, TabloSutunlari[6], ust, Sag, alt);

    // The reason of the write-off, marked in its box.
    Ciz::Kutu(z, Sol, alt, Sag, IsaretAlt(d));
    const double isaretUst = IsaretY + Kayma(d) - 30;
    Ciz::Kutu(z, IsaretX - 60, isaretUst, IsaretX + 200, isaretUst + 290);
    SolaEtiket(z, Alan(IsaretX + 200, isaretUst, Sag, isaretUst + 290),
               u"Kayıttan düşme nedeni : Hasarlı - kullanım dışı"_s, 9);
    Ciz::Kutu(z, Sol, IsaretAlt(d), Sag, AciklamaAlt);
    Ciz::Etiket(z, Alan(Sol, IsaretAlt(d) + 40, Sag, AciklamaAlt), u"Açıklama :"_s, 8, false,
                Qt::AlignLeft | Qt::AlignTop);
}

void ImzaCiz(Zemin& z)
{
    Ciz::Kutu(z, Sol, AciklamaAlt, Sag, TeklifUst);
    SolaEtiket(z, Alan(Sol, AciklamaAlt, Sag, TeklifUst),
               u"Yukarıda cinsi, miktarı ve değeri yazılı taşınırların hasarlı ve kullanım dışı olduğu "
               "anlaşıldığından kayıttan düşülmesi teklif olunur."_s,
               9);

    // The store officer proposes, beside the date.
    Ciz::Kutu(z, Sol, TeklifUst, OnayOrtasi, KomisyonUst);
    Baslik(z, OnayOrtasi, TeklifUst, Sag, TeklifIsimUst, u"Teklif Eden\nTaşınır Kayıt ve Kontrol Yetkilisi"_s, 7);
    Ciz::Kutu(z, OnayOrtasi, TeklifIsimUst, Sag, KomisyonUst);

    const QList<double> komisyon(std::begin(KomisyonSutunlari), std::end(KomisyonSutunlari));
    Ciz::Basliklar(z, komisyon, KomisyonUst, KomisyonIsimUst,
                   {u"Komisyon Başkanı"_s, u"Komisyon Üyesi"_s, u"Komisyon Üyesi"_s});
    Ciz::Govde(z, komisyon, KomisyonIsimUst, OnayUst - KomisyonIsimUst, 1);

    // Each date's label ends just left of it.
    const double tarihler[][3] = {{Sol + 40, 1080, TeklifTarihiY}, {Sol + 40, 680, KomisyonTarihiY},
                                  {7720, 8630, KomisyonTarihiY}};
    for (const auto& [sol, sag, y] : tarihler)
        Ciz::Etiket(z, QRectF(QPointF(sol, y), QPointF(sag, y + 210)), u"Tarih :"_s, 8, true,
                    Qt::AlignRight | Qt::AlignVCenter);

    Ciz::Basliklar(z, {Sol, OnayOrtasi, Sag}, OnayUst, OnayIsimUst,
                   {u"UYGUNDUR\nHarcama Yetkilisi"_s, u"ONAY\nÜst Yönetici"_s}, 7);
    Ciz::Govde(z, {Sol, OnayOrtasi, Sag}, OnayIsimUst, Alt - OnayIsimUst, 1);
}

Zemin DusumZemini(const DusumEkrani& d)
{
    Zemin z;
    BasCiz(z);
    TabloCiz(z, d);
    ImzaCiz(z);
    Ciz::Kutu(z, Sol, Ust, Sag, Alt, Ciz::CerceveCizgisi);
    return z;
}

// Column by column, each over rows 1 to 25; a row without a code keeps its
// place empty and takes no number.
void SatirlariYaz(Sayfa& sayfa, const DusumEkrani& d)
{
    for (int j = 0; j < 7; ++j) {
        int sira = 0;
        for (int i = 1; i <= Ciz::SatirSayisi; ++i) {
            if (!Satirda(d, i))
                continue;
            const QString miktar = d.Hucre(i, DusumSutun::Miktar);
            const QString fiyat = d.Hucre(i, DusumSutun::BirimFiyat);
            QString metin;
            switch (j) {
            case 0:
                metin = QString::number(++sira);
                break;
            case 1:
                metin = d.Hucre(i, DusumSutun::SicilNo).left(17);
                break;
            case 2:
                metin = d.Hucre(i, DusumSutun::Ozellik).left(30);
                break;
            case 3:
                metin = d.Hucre(i, DusumSutun::Birimi).left(7);
                break;
            case 4: {
                QVariant deger = Val(miktar);
                metin = Tutar2Yaz(deger, 9);
                break;
            }
            // The price as the amount reads it, so that the two agree.
            case 5: {
                QVariant deger = Val(VirgulNokta(fiyat));
                metin = Miktar4Yaz(deger, 9);
                break;
            }
            default: {
                QVariant deger = Val(VirgulNokta(miktar)) * Val(VirgulNokta(fiyat));
                metin = Miktar4Yaz(deger, 15);
            }
            }
            Ciz::Sigdir(sayfa, SutunX[j], SatirY(i), metin, 9, TabloSutunlari[j + 1]);
        }
    }
}

}

Sayfa DusumSayfasi(const DusumYazimi& yazim, const SabitSatiri& sabit)
{
    const DusumEkrani& d = yazim.d;
    Sayfa s;
    s.zemin = DusumZemini(d);

    const char* const kurum[][2] = {
        {"ilAdi", "ilKod"}, {"KurumAdi", "KurumKod"}, {"MuhasebeBirimiAdi", "MuhasebeBirimiKod"}};
    for (int i = 0; i < 3; ++i) {
        Ciz::Sigdir(s, 2500, KurumY[i], sabit.value(QString::fromLatin1(kurum[i][0])), 9, KodEtiketSol);
        Ciz::Sigdir(s, 8400, KurumY[i], sabit.value(QString::fromLatin1(kurum[i][1])), 9, Sag);
    }
    Ciz::Sigdir(s, 9200, 100, d.Tarih, 11, Sag);
    Ciz::Sigdir(s, 9400, 360, d.FisNo, 14, Sag);

    SatirlariYaz(s, d);

    Ciz::Sigdir(s, MiktarToplamiX, MiktarToplamiY + Kayma(d), yazim.Text2, 10, TabloSutunlari[6]);
    Ciz::Yaz(s, IsaretX, IsaretY + Kayma(d), u"X"_s, 10);

    Ciz::Sigdir(s, 1100, TeklifTarihiY, d.Tarih, 9, OnayOrtasi);
    Ciz::Sigdir(s, 7450, 11700, sabit.value(u"AyniyatMemuru2"_s), 9, Sag);
    Ciz::Sigdir(s, 7450, 11700 + ImzaAdimi, sabit.value(u"AyniyatMemuru1"_s), 9, Sag);
    Ciz::Sigdir(s, 4650, 13210, sabit.value(u"AyniyatMemuru2"_s), 9, KomisyonSutunlari[2]);
    Ciz::Sigdir(s, 4650, 13210 + ImzaAdimi, sabit.value(u"AyniyatMemuru1"_s), 9, KomisyonSutunlari[2]);
    const double ustYonetici = UstYoneticiAdiY();
    Ciz::Sigdir(s, 7500, ustYonetici, sabit.value(u"UstYonetici2"_s), 9, Sag);
    Ciz::Sigdir(s, 7500, ustYonetici + ImzaAdimi, sabit.value(u"UstYonetici1"_s), 9, Sag);
    Ciz::Sigdir(s, 700, KomisyonTarihiY, d.Tarih, 9, KomisyonSutunlari[1]);
    Ciz::Sigdir(s, 8650, KomisyonTarihiY, d.Tarih, 9, Sag);
    Ciz::Sigdir(s, 660, 12810, d.KomisyonBaskaniAdi, 9, KomisyonSutunlari[1]);
    Ciz::Sigdir(s, 660, 12810 + ImzaAdimi, d.KomisyonBaskaniUnvani, 9, KomisyonSutunlari[1]);
    Ciz::Sigdir(s, 7700, 12950, d.UyeAdi, 9, Sag);
    Ciz::Sigdir(s, 7700, 12950 + ImzaAdimi, d.UyeUnvani, 9, Sag);
    Ciz::Sigdir(s, 2500, 14370, sabit.value(u"HarcamaYetkilisi2"_s), 9, OnayOrtasi);
    Ciz::Sigdir(s, 2500, 14370 + ImzaAdimi, sabit.value(u"HarcamaYetkilisi1"_s), 9, OnayOrtasi);
    return s;
}

void DusumKdvYaz(Sayfa& sayfa, const DusumYazimi& yazim)
{
    const double kdvY = VergiY(yazim.d);
    const double genelY = kdvY + Ciz::SatirAdimi;
    Ciz::Sil(sayfa, VergiX, kdvY, 9);
    Ciz::Sil(sayfa, VergiX, genelY, 9);
    Ciz::Sigdir(sayfa, VergiX, kdvY, FisYazimiKurali::KdvSatiri(yazim.KDVTOP), 9, Sag);
    Ciz::Sigdir(sayfa, VergiX, genelY,
                FisYazimiKurali::GenelToplamSatiri(DusumKayit::AraToplam(yazim.d).Text3, yazim.KDVTOP), 9, Sag);
}
