#include "zimmet_sayfasi.h"

#include "bicim.h"
#include "form_cizimi.h"
#include "kayit.h"

using namespace Qt::StringLiterals;
namespace Ciz = FormCizimi;

namespace {

// Twips from the printable area's origin. The boxes are laid out around the
// places where the texts go, so that each text sits inside one of them.
constexpr double Sol = 40;
constexpr double Sag = 11146;
constexpr double IlkSatirY = 3100;
constexpr double ImzaTabani = 11800;
constexpr double ImzaAdimi = 220;
// The name and title of the one who hands over, 10 point.
constexpr double EdenAdY = 10750;
constexpr double EdenAdimi = 250;
constexpr double EtiketPuntosu = 7;
constexpr double ImzaYeri = 450;
constexpr double KodSol = 5400;  // the code's label, right of the institution's names
constexpr double EdenSag = 5200;  // the one who hands over, left of the receiver
constexpr double AlanSag = 9500;  // the receiver's values, left of his signature
constexpr double YetkiliSag = 8200;  // the right edge of the officer's block
// The lines' columns, each edge just left of where its texts begin.
constexpr double Sutunlar[] = {Sol, 730, 3230, 6680, 7570, 8600, Sag};

QRectF Alan(double sol, double ust, double sag, double alt)
{
    return QRectF(QPointF(sol, ust), QPointF(sag, alt));
}

void SatirEtiketi(Zemin& z, double sol, double ust, double sag, double alt, const QString& metin)
{
    Ciz::Etiket(z, Alan(sol, ust, sag, alt), metin, EtiketPuntosu);
}

// A block of the signatories: its title, the name and the title rows at the
// places of the texts, and a taller row to sign in.
void ImzaBlogu(Zemin& z, double sol, double etiketSag, double sag, double ust, double satirUst, double adim,
               const QString& baslik)
{
    const double imzaUst = satirUst + 2 * adim;
    const double alt = imzaUst + ImzaYeri;
    Ciz::Basliklar(z, {sol, sag}, ust, satirUst, {baslik});
    Ciz::Govde(z, {sol, etiketSag, sag}, satirUst, adim, 2);
    Ciz::Kutu(z, sol, imzaUst, etiketSag, alt);
    Ciz::Kutu(z, etiketSag, imzaUst, sag, alt);
    SatirEtiketi(z, sol, satirUst, etiketSag, satirUst + adim, u"Adı Soyadı"_s);
    SatirEtiketi(z, sol, satirUst + adim, etiketSag, imzaUst, u"Unvanı"_s);
    SatirEtiketi(z, sol, imzaUst, etiketSag, alt, u"İmza"_s);
    Ciz::Kutu(z, sol, ust, sag, alt, Ciz::CerceveCizgisi);
}

Zemin ZimmetZemini()
{
    Zemin z;

    Ciz::Kutu(z, Sol, 40, Sag, 560, Ciz::CerceveCizgisi);
    Ciz::Etiket(z, Alan(Sol, 60, Sag, 360), u"TAŞINIR ZİMMET FİŞİ"_s, 13, true);
    Ciz::Etiket(z, Alan(Sol, 350, Sag, 540), u"(Dayanıklı Taşınırlar)"_s, 8);

    Ciz::Basliklar(z, {Sol, 1060}, 560, 930, {u"Fiş No"_s});
    Ciz::Kutu(z, 1060, 560, 5600, 930);
    Ciz::Basliklar(z, {5600, 6860}, 560, 930, {u"Tarih"_s});
    Ciz::Kutu(z, 6860, 560, Sag, 930);

    // The institution, then the person who takes the goods and his unit.
    const struct
    {
        double ust, alt;
        QString ad;
        bool kodlu;
    } kurum[] = {{930, 1175, u"İli / İlçesi"_s, true},
                 {1175, 1420, u"Harcama Birimi"_s, true},
                 {1420, 1745, u"Zimmet Alanın Adı Soyadı"_s, false},
                 {1745, 2010, u"Bulunduğu Birim"_s, false}};
    for (const auto& s : kurum) {
        Ciz::Kutu(z, Sol, s.ust, 2060, s.alt);
        Ciz::Etiket(z, Alan(Sol + 20, s.ust, 2045, s.alt), s.ad, 8, true, Qt::AlignLeft | Qt::AlignVCenter);
        if (s.kodlu) {
            Ciz::Kutu(z, 2060, s.ust, KodSol, s.alt);
            Ciz::Basliklar(z, {KodSol, 6460}, s.ust, s.alt, {u"Kodu"_s});
            Ciz::Kutu(z, 6460, s.ust, Sag, s.alt);
        } else {
            Ciz::Kutu(z, 2060, s.ust, Sag, s.alt);
        }
    }

    const QList<double> sutunlar(std::begin(Sutunlar), std::end(Sutunlar));
    const double govdeUst = Ciz::CizgiUstu(IlkSatirY, Ciz::SatirAdimi, 9);
    Ciz::Basliklar(
        z, sutunlar, 2010, govdeUst,
        {u"Sıra No"_s, u"Sicil No"_s, u"Taşınırın Adı / Özelliği"_s, u"Miktarı"_s, u"Ölçü Birimi"_s, u"Açıklama"_s});
    Ciz::Govde(z, sutunlar, govdeUst, Ciz::SatirAdimi, Ciz::SatirSayisi);
    Ciz::Kutu(z, Sol, 2010, Sag, govdeUst + Ciz::SatirSayisi * Ciz::SatirAdimi, Ciz::CerceveCizgisi);

    Ciz::Kutu(z, Sol, 9160, Sag, 10100);
    Ciz::Etiket(z, Alan(100, 9220, Sag - 60, 9600),
                u"Yukarıda cinsi, miktarı ve sicil numarası yazılı dayanıklı taşınırları sağlam ve eksiksiz "
                "olarak zimmetime teslim aldım."_s,
                8, false, Qt::AlignLeft | Qt::AlignTop);
    Ciz::Etiket(z, Alan(5200, 9740, 6800, 10060), u"Teslim Tarihi"_s, 8, true, Qt::AlignRight | Qt::AlignVCenter);
    Ciz::Kutu(z, 6860, 9740, 8600, 10060);

    const double edenUst = Ciz::CizgiUstu(EdenAdY, EdenAdimi, 10);
    ImzaBlogu(z, Sol, 780, EdenSag, 10480, edenUst, EdenAdimi, u"TESLİM EDEN"_s);

    // The receiver's name and date come at places of their own; he signs
    // in a column beside them.
    const double alanAd = edenUst + EdenAdimi;
    const double alanTarih = alanAd + EdenAdimi;
    const double alanAlt = alanTarih + ImzaYeri;
    Ciz::Basliklar(z, {EdenSag, Sag}, 10480, edenUst, {u"TESLİM ALAN"_s});
    Ciz::Yatay(z, alanAd, EdenSag, AlanSag);
    Ciz::Yatay(z, alanTarih, EdenSag, AlanSag);
    Ciz::Dikey(z, 6230, edenUst, alanAlt);
    Ciz::Kutu(z, AlanSag, edenUst, Sag, alanAlt);
    Ciz::Etiket(z, Alan(AlanSag, edenUst, Sag, alanAd), u"İmza"_s, EtiketPuntosu);
    SatirEtiketi(z, EdenSag, edenUst, 6230, alanAd, u"Unvanı"_s);
    SatirEtiketi(z, EdenSag, alanAd, 6230, alanTarih, u"Adı Soyadı"_s);
    SatirEtiketi(z, EdenSag, alanTarih, 6230, alanAlt, u"Tarih"_s);
    Ciz::Kutu(z, EdenSag, 10480, Sag, alanAlt, Ciz::CerceveCizgisi);

    ImzaBlogu(z, 3000, 4780, YetkiliSag, 11750, Ciz::CizgiUstu(ImzaTabani + ImzaAdimi, ImzaAdimi, 9), ImzaAdimi,
              u"TAŞINIR KAYIT VE KONTROL YETKİLİSİ"_s);
    return z;
}

}

Sayfa ZimmetSayfasi(const FisYazimi& yazim, const SabitSatiri& sabit)
{
    const FisEkrani& fis = yazim.fis;
    Sayfa s;
    s.zemin = ZimmetZemini();

    Ciz::Sigdir(s, 2100, 940, sabit.value(u"ilAdi"_s), 10, KodSol);
    Ciz::Sigdir(s, 6500, 940, sabit.value(u"ilKod"_s), 10, Sag);
    Ciz::Sigdir(s, 2100, 1180, sabit.value(u"KurumAdi"_s), 10, KodSol);
    Ciz::Sigdir(s, 6500, 1180, sabit.value(u"KurumKod"_s), 10, Sag);
    Ciz::Sigdir(s, 2100, 1490, fis.Hucre(1, FisSutun::KimeVerildigi), 10, Sag);
    if (yazim.UniteAd2 != "false"_L1)
        Ciz::Sigdir(s, 2100, 1770, yazim.UniteAd2, 10, Sag);
    Ciz::Yaz(s, 6900, 9800, fis.Tarih, 10);
    Ciz::Sigdir(s, 800, EdenAdY, sabit.value(u"AyniyatMemuru2"_s), 10, EdenSag);
    Ciz::Sigdir(s, 800, EdenAdY + EdenAdimi, sabit.value(u"AyniyatMemuru1"_s), 10, EdenSag);
    Ciz::Sigdir(s, 6250, 11000, fis.TeslimAlan.left(24), 10, AlanSag);

    Ciz::Yaz(s, 7100, 11400, fis.Tarih, 9);
    Ciz::Sigdir(s, 4800, ImzaTabani + ImzaAdimi, sabit.value(u"AyniyatMemuru2"_s), 9, YetkiliSag);
    Ciz::Sigdir(s, 4800, ImzaTabani + 2 * ImzaAdimi, sabit.value(u"AyniyatMemuru1"_s), 9, YetkiliSag);

    Ciz::Yaz(s, 1100, 600, FisYazimiKurali::CinsIsareti(fis.FCins, fis) + u'-' + fis.FisNo, 14);
    Ciz::Yaz(s, 6900, 600, fis.Tarih, 11);

    int sayac = 0;
    for (int i = 1; i <= Ciz::SatirSayisi; ++i) {
        const QString kod = fis.Hucre(i, FisSutun::HesapKod);
        if (kod.isEmpty() || kod.left(3) == "150"_L1)
            continue;
        ++sayac;
        const double y = IlkSatirY + (sayac - 1) * Ciz::SatirAdimi;
        Ciz::Yaz(s, 80, y, QString::number(sayac), 9);
        Ciz::Sigdir(s, 750, y, FisYazimiKurali::SicilYazisi(fis, i, sayac), 9, Sutunlar[2]);
        Ciz::Sigdir(s, 3260, y, fis.Hucre(i, FisSutun::Ozellik).left(35), 9, Sutunlar[3]);
        Ciz::Sigdir(s, 7600, y, fis.Hucre(i, FisSutun::Birimi).left(7), 9, Sutunlar[5]);
        // What came in on an entry voucher, what went out on an issue voucher.
        Ciz::Sigdir(s, 6700, y, SayiMetni(FisYazimiKurali::Miktar(fis, i)), 9, Sutunlar[4]);
    }
    return s;
}
