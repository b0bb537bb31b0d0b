#include "sayim_cetveli.h"

#include "kayit.h"
#include "rapor_belgesi.h"
#include "veritabani.h"
#include "yil_devri.h"

namespace SayimDokum {

using namespace YilDevri;

RaporTablosu Hesapla(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& anaHesap,
                     const QString& altHesap)
{
    RaporTablosu t;
    t.baslik = QStringLiteral("   ") + QStringLiteral(" TAŞINIR SAYIM ve DÖKÜM CETVELİ  ");
    t.sutunlar = Sutunlar();

    const QString y = s.Tarih1.isValid() ? s.Tarih1.toString(QStringLiteral("yyyy")) : QString();
    const Okunan o = Oku(ayniyat, genel, s, Duzey::Iki, anaHesap, y);
    // The header names the last class of the walk, as FCins2 holds it.
    if (!o.siniflar.isEmpty()) {
        t.tasinirKod = o.siniflar.last().HesapKod;
        t.tasinirAdi = o.siniflar.last().HesapAd;
    }

    double dq = 0, giren = 0, girenTutar = 0, tq = 0, tt = 0, devir = 0, devirTutar = 0;
    for (qsizetype i = 0; i < o.siniflar.size(); ++i) {
        const QString& kod = o.siniflar[i].HesapKod;
        // A line's Mid(HesapKod,1,6) is that of its class.
        if (!altHesap.isEmpty() && kod.left(6) != altHesap)
            continue;
        if (o.bas[i] == o.bas[i + 1])
            continue;
        // The accumulators of the class.
        double oncekiGiren = 0, oncekiGirenTutar = 0, oncekiCikan = 0;
        double yilGiren = 0, yilGirenTutar = 0, yilCikan = 0, yilCikanTutar = 0;
        // A consumable leaves by any issue, a durable item only by a
        // write-off line.
        const bool tuketim = kod.startsWith(u"150");
        for (std::size_t j = o.bas[i]; j < o.bas[i + 1]; ++j) {
            const Satir& l = o.satirlar[j];
            const bool cikar = tuketim || l.dusum;
            if (l.yil == Yil::Onceki) {
                oncekiGiren += l.miktar;
                oncekiGirenTutar += l.miktar * l.fiyat;
                if (cikar)
                    oncekiCikan += l.cikan;
            } else if (l.yil == Yil::Ayni) {
                yilGiren += l.miktar;
                yilGirenTutar += l.miktar * l.fiyat;
                if (cikar) {
                    yilCikan += l.cikan;
                    yilCikanTutar += l.cikan * l.fiyat;
                }
            }
        }
        // Earlier issues lower the quantity carried over but not its value.
        const double devredenMiktar = oncekiGiren - oncekiCikan;
        const double toplamMiktar = devredenMiktar + yilGiren;
        const double toplamTutar = oncekiGirenTutar + yilGirenTutar;
        QStringList h(HucreSayisi);
        h[Sira] = QString::number(t.satirlar.size() + 1);
        h[Kod] = kod;
        h[Ad] = o.siniflar[i].HesapAd;
        h[Birimi] = o.sonBirimi[i];
        // The carried-over value stays out of its own cell; it reaches
        // Toplam and the carry-over.
        h[DevredenMiktar] = ParaYaz(devredenMiktar);
        h[GirenMiktar] = ParaYaz(yilGiren);
        h[GirenTutar] = ParaYaz(yilGirenTutar);
        h[ToplamMiktar] = ParaYaz(toplamMiktar);
        h[ToplamTutar] = ParaYaz(toplamTutar);
        h[CikanMiktar] = ParaYaz(yilCikan);
        h[CikanTutar] = ParaYaz(yilCikanTutar);
        h[DevirMiktar] = ParaYaz(toplamMiktar - yilCikan);
        h[DevirTutar] = ParaYaz(toplamTutar - yilCikanTutar);
        t.satirlar.append({SatirTuru::Kayit, h});
        dq += devredenMiktar;
        giren += yilGiren;
        girenTutar += yilGirenTutar;
        tq += toplamMiktar;
        tt += toplamTutar;
        devir += toplamMiktar - yilCikan;
        devirTutar += toplamTutar - yilCikanTutar;
    }
    if (!t.satirlar.isEmpty()) {
        // No Devreden value and no Çıkan total in the closing row.
        QStringList h(HucreSayisi);
        h[Birimi] = QStringLiteral("GenelToplam");
        h[DevredenMiktar] = ParaYaz(dq);
        h[GirenMiktar] = ParaYaz(giren);
        h[GirenTutar] = ParaYaz(girenTutar);
        h[ToplamMiktar] = ParaYaz(tq);
        h[ToplamTutar] = ParaYaz(tt);
        h[DevirMiktar] = ParaYaz(devir);
        h[DevirTutar] = ParaYaz(devirTutar);
        t.satirlar.append({SatirTuru::Kapanis, h});
    }
    return t;
}

QList<RaporListeleri::KodAd> AltHesaplar(Veritabani& genel)
{
    const QString sql = QStringLiteral("Select HesapKod, HesapAd from HESAP_K where Mid(HesapKod, 6, 1) <> ''  And "
                                       "Mid(HesapKod, 8, 1) = ''  ");
    QList<RaporListeleri::KodAd> hesaplar;
    for (const QStringList& r : genel.Satirlar(sql))
        hesaplar.append({r.at(0), r.at(1)});
    return hesaplar;
}

RaporKagidi Kagit(const SabitSatiri& sabit)
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 46;
    k.devam = 5;
    const QString duzey = QStringLiteral("2. Düzey");
    k.ilkBas = QList<BasSatiri>(5) << BasSatiri{{{0, QString(275, u'-')}}};
    k.ilkBas << GenisBasliklar(duzey, QStringLiteral(" Gelecek Yıla Devir")) << BasSatiri{{{0, QString(266, u'-')}}};
    // The pages after the first have narrower places.
    const BasSatiri ayirici{{{0, QString(146, u'-')}}};
    k.devamBas = QList<BasSatiri>{ayirici} << DarBasliklar(duzey) << ayirici;
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> { return Basilan(satir); };
    const auto deger = [&](const char* alan) { return sabit.value(QString::fromLatin1(alan)).trimmed(); };
    k.kapanis = {{{75, QStringLiteral("TAŞINIR KAYIT VE KONTROL YETKİLİSİ")}},
                 {},
                 {},
                 {{75, deger("AyniyatMemuru2")}},
                 {{75, deger("AyniyatMemuru1")}},
                 {},
                 {}};
    k.kapanis << RaporBelgeleri::SayimKurulu(sabit) << KagitSatiri{{0, QStringLiteral("TMY Örnek. 13")}};
    return k;
}

}
