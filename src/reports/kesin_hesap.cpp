#include "kesin_hesap.h"

#include "kayit.h"
#include "yil_devri.h"

using namespace YilDevri;

namespace KesinHesapRaporu {

RaporTablosu Toplu(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& anaHesap,
                   const QString& calisYil)
{
    const Okunan o = Oku(ayniyat, genel, s, Duzey::Bir, anaHesap, calisYil);
    RaporTablosu t;
    t.sutunlar = Sutunlar();
    if (o.siniflar.isEmpty())
        return t;

    double gTaban = 0, gGiren = 0, gGirenTutar = 0, gToplam = 0, gToplamTutar = 0, gDevir = 0, gDevirTutar = 0;
    int sira = 0;
    for (qsizetype i = 0; i < o.siniflar.size(); ++i) {
        if (o.bas[i] == o.bas[i + 1])
            continue;
        const Sinif& sinif = o.siniflar[i];
        const bool tuketim = sinif.HesapKod.startsWith(QStringLiteral("150"));
        double oncekiNet = 0, oncekiNetTutar = 0, oncekiCikan = 0, oncekiCikanTutar = 0;
        double yilGiren = 0, yilGirenTutar = 0, yilCikan = 0, yilCikanTutar = 0;
        for (std::size_t j = o.bas[i]; j < o.bas[i + 1]; ++j) {
            const Satir& satir = o.satirlar[j];
            const double m = satir.miktar, c = satir.cikan, p = satir.fiyat;
            // A consumable leaves by any issue, a durable item only by a
            // write-off line; a line after the working year counts nowhere.
            const bool cikar = tuketim || satir.dusum;
            if (satir.yil == Yil::Onceki) {
                oncekiNet += m;
                oncekiNetTutar += m * p;
                if (cikar) {
                    oncekiNet -= c;
                    oncekiNetTutar -= c * p;
                    oncekiCikan += c;
                    oncekiCikanTutar += c * p;
                }
            } else if (satir.yil == Yil::Ayni) {
                yilGiren += m;
                yilGirenTutar += m * p;
                if (cikar) {
                    yilCikan += c;
                    yilCikanTutar += c * p;
                }
            }
        }
        // Devreden is shown net of the earlier issues, and Toplam takes them
        // off once more: so the form has always added up.
        const double taban = oncekiNet - oncekiCikan;
        const double tabanTutar = oncekiNetTutar - oncekiCikanTutar;
        const double toplam = taban + yilGiren;
        const double toplamTutar = tabanTutar + yilGirenTutar;
        const double devir = toplam - yilCikan;
        const double devirTutar = toplamTutar - yilCikanTutar;

        QStringList h(HucreSayisi);
        h[Sira] = QString::number(++sira);
        h[Kod] = sinif.HesapKod;
        h[Ad] = sinif.HesapAd;
        h[Birimi] = o.sonBirimi[i];
        h[DevredenMiktar] = ParaYaz(oncekiNet);
        h[DevredenTutar] = ParaYaz(oncekiNetTutar);
        h[GirenMiktar] = ParaYaz(yilGiren);
        h[GirenTutar] = ParaYaz(yilGirenTutar);
        h[ToplamMiktar] = ParaYaz(toplam);
        h[ToplamTutar] = ParaYaz(toplamTutar);
        h[CikanMiktar] = ParaYaz(yilCikan);
        h[CikanTutar] = ParaYaz(yilCikanTutar);
        h[DevirMiktar] = ParaYaz(devir);
        h[DevirTutar] = ParaYaz(devirTutar);
        t.satirlar.append({SatirTuru::Kayit, h});

        gTaban += taban;
        gGiren += yilGiren;
        gGirenTutar += yilGirenTutar;
        gToplam += toplam;
        gToplamTutar += toplamTutar;
        gDevir += devir;
        gDevirTutar += devirTutar;
    }

    QStringList h(HucreSayisi);
    h[Birimi] = QStringLiteral("GenelToplam");
    h[DevredenMiktar] = ParaYaz(gTaban);
    h[GirenMiktar] = ParaYaz(gGiren);
    h[GirenTutar] = ParaYaz(gGirenTutar);
    h[ToplamMiktar] = ParaYaz(gToplam);
    h[ToplamTutar] = ParaYaz(gToplamTutar);
    h[DevirMiktar] = ParaYaz(gDevir);
    h[DevirTutar] = ParaYaz(gDevirTutar);
    t.satirlar.append({SatirTuru::Kapanis, h});

    // The class on screen when the walk ends names the table.
    t.baslik = QStringLiteral("   ") + QStringLiteral(" KESİN HESAP İCMAL CETVELİ  ");
    t.tasinirKod = o.siniflar.last().HesapKod;
    t.tasinirAdi = o.siniflar.last().HesapAd;
    return t;
}

RaporKagidi Kagit()
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 46;
    k.devam = 5;
    k.ilkBas = GenisBasliklar(QStringLiteral("1. Düzey"), QStringLiteral(" Gelecek Yıla Devir"));
    k.ilkBas.prepend({{{1, QString(275, u'-')}}, false});
    k.ilkBas.prepend({});
    k.ilkBas.append({{{1, QString(266, u'-')}}, false});
    const BasSatiri ayirici{{{1, QString(146, u'-')}}, false};
    k.devamBas = DarBasliklar(QStringLiteral("1. Düzey"));
    k.devamBas.prepend(ayirici);
    k.devamBas.append(ayirici);
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> { return Basilan(satir); };
    return k;
}

QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo)
{
    const auto deger = [&](const char* alan) { return sabit.value(QString::fromLatin1(alan)).trimmed(); };
    return {{{2, QStringLiteral("İdarenin Adı  : ") + deger("KurumAdi")},
             {60, QStringLiteral(" Kod : ") + deger("KurumKod")},
             {106, QStringLiteral("Taşınır Kod  : ") + tablo.tasinirKod + QStringLiteral("  ") + tablo.tasinirAdi}}};
}

}
