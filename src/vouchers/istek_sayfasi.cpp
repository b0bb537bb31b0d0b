#include "istek_sayfasi.h"

#include "form_cizimi.h"
#include "kayit.h"

#include <utility>

using namespace Qt::StringLiterals;
namespace Ciz = FormCizimi;

namespace {

// Twips from the printable area's origin. The boxes are laid out around the
// places where the texts go, so that each text sits inside one of them.
constexpr double Sol = 40;
constexpr double Sag = 11146;
constexpr double IlkSatirY = 2100;
// The form has room for more lines than a voucher holds, down to the total.
constexpr int FormSatiri = 38;
constexpr double ToplamAlt = 11560;
constexpr double ImzaTabani = 13000;
constexpr double ImzaAdimi = 212;
constexpr double BlokOrtasi = 5560;  // between the two signature blocks
constexpr double BelgeSol = 7300;  // the slip's number and date, right of the title and the unit
// The lines' columns, each edge just left of where its texts begin.
constexpr double Sutunlar[] = {Sol, 710, 2380, 5980, 7180, 8880, Sag};

Zemin IstekZemini()
{
    Zemin z;

    Ciz::Basliklar(z, {Sol, BelgeSol}, 40, 620, {u"TAŞINIR İSTEK BELGESİ"_s}, 13);
    Ciz::Basliklar(z, {BelgeSol, 8660}, 40, 640, {u"Belge No"_s});
    Ciz::Kutu(z, 8660, 40, Sag, 640);
    Ciz::Basliklar(z, {BelgeSol, 8660}, 640, 980, {u"Tarih"_s});
    Ciz::Kutu(z, 8660, 640, Sag, 980);
    Ciz::Basliklar(z, {Sol, 1610}, 620, 980, {u"İsteyen Birim"_s});
    Ciz::Kutu(z, 1610, 620, BelgeSol, 980);

    const QList<double> sutunlar(std::begin(Sutunlar), std::end(Sutunlar));
    const double govdeUst = Ciz::CizgiUstu(IlkSatirY, Ciz::SatirAdimi, 9);
    const double govdeAlt = govdeUst + FormSatiri * Ciz::SatirAdimi;
    Ciz::Basliklar(z, sutunlar, 980, govdeUst,
                   {u"Sıra No"_s, u"Taşınır Kodu"_s, u"Taşınırın Adı"_s, u"Ölçü Birimi"_s, u"İstenilen Miktar"_s,
                    u"Verilen Miktar"_s});
    Ciz::Govde(z, sutunlar, govdeUst, Ciz::SatirAdimi, FormSatiri);
    Ciz::Kutu(z, Sol, 980, Sag, govdeAlt, Ciz::CerceveCizgisi);
    Ciz::Basliklar(z, {5980, 7180}, govdeAlt, ToplamAlt, {u"TOPLAM"_s});
    Ciz::Kutu(z, 7180, govdeAlt, Sag, ToplamAlt, Ciz::CerceveCizgisi);

    // The name goes on the first block row, the date or the title on the
    // fourth; the two between are one place to sign in.
    const double satirUst = Ciz::CizgiUstu(ImzaTabani + ImzaAdimi, ImzaAdimi, 9);
    const struct
    {
        double sol, etiketSag, sag;
        QString baslik, son;
    } bloklar[] = {{Sol, 1030, BlokOrtasi, u"İSTEYEN / TESLİM ALAN"_s, u"Tarih"_s},
                   {5600, 7430, Sag, u"ONAYLAYAN / TESLİM EDEN"_s, u"Unvanı"_s}};
    for (const auto& b : bloklar) {
        Ciz::Basliklar(z, {b.sol, b.sag}, satirUst - 300, satirUst, {b.baslik});
        const std::pair<QString, int> satirlar[] = {{u"Adı Soyadı"_s, 1}, {u"İmza"_s, 2}, {b.son, 1}};
        double ust = satirUst;
        for (const auto& [etiket, kac] : satirlar) {
            const double alt = ust + kac * ImzaAdimi;
            Ciz::Govde(z, {b.sol, b.etiketSag, b.sag}, ust, alt - ust, 1);
            Ciz::Etiket(z, QRectF(QPointF(b.sol, ust), QPointF(b.etiketSag, alt)), etiket, 7);
            ust = alt;
        }
    }
    return z;
}

// The store asks no one for goods: its own name stays off the slip.
QString IsteyenBirim(const QString& unite)
{
    if (unite == "DEPO"_L1 || unite == "Depo"_L1)
        return QString(13, u' ');
    if (unite == "false"_L1)
        return {};
    return unite;
}

}

Sayfa IstekSayfasi(const FisYazimi& yazim, const SabitSatiri& sabit)
{
    const FisEkrani& fis = yazim.fis;
    Sayfa s;
    s.zemin = IstekZemini();

    Ciz::Sigdir(s, 1050, ImzaTabani + ImzaAdimi, fis.TeslimAlan.left(26), 9, BlokOrtasi);
    Ciz::Yaz(s, 1050, ImzaTabani + 4 * ImzaAdimi, fis.Tarih, 9);
    Ciz::Sigdir(s, 7450, ImzaTabani + ImzaAdimi, sabit.value(u"AyniyatMemuru2"_s), 9, Sag);
    Ciz::Sigdir(s, 7450, ImzaTabani + 4 * ImzaAdimi, sabit.value(u"AyniyatMemuru1"_s), 9, Sag);

    Ciz::Yaz(s, 8700, 280, FisYazimiKurali::CinsIsareti(fis.Hangi, fis) + u'-' + fis.FisNo, 14);
    Ciz::Yaz(s, 8700, 670, fis.Tarih, 12);
    Ciz::Sigdir(s, 1650, 650, IsteyenBirim(yazim.UniteAd2), 12, BelgeSol);
    QString toplam = yazim.Text2;
    Ciz::Yaz(s, 7950, 11310, SagaDaya(toplam, 15), 10);

    int sayac = 0;
    for (int i = 1; i <= Ciz::SatirSayisi; ++i) {
        const double cikan = Val(fis.Hucre(i, FisSutun::Cikan));
        if (!(cikan > 0))
            continue;
        ++sayac;
        const double y = IlkSatirY + (sayac - 1) * Ciz::SatirAdimi;
        QVariant miktar = cikan;
        const QString istenen = Tutar2Yaz(miktar, 9);
        Ciz::Yaz(s, 180, y, QString::number(sayac), 9);
        Ciz::Sigdir(s, 730, y, fis.Hucre(i, FisSutun::HesapKod).left(16), 9, Sutunlar[2]);
        Ciz::Sigdir(s, 2400, y, fis.Hucre(i, FisSutun::Ozellik).left(36), 9, Sutunlar[3]);
        Ciz::Sigdir(s, 6000, y, fis.Hucre(i, FisSutun::Birimi).left(7), 9, Sutunlar[4]);
        Ciz::Sigdir(s, 7200, y, istenen, 9, Sutunlar[5]);
        // A voucher has one outgoing quantity: the delivered column repeats it.
        Ciz::Sigdir(s, 8900, y, istenen, 9, Sag);
    }
    return s;
}
