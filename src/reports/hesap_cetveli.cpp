#include "hesap_cetveli.h"

#include "kayit.h"
#include "rapor_belgesi.h"
#include "yil_devri.h"

#include <algorithm>

using namespace YilDevri;

namespace HesapCetveliRaporu {

RaporTablosu Toplu(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& anaHesap)
{
    const QString yil = s.Tarih1.isValid() ? s.Tarih1.toString(QStringLiteral("yyyy")) : QString();
    Okunan o = Oku(ayniyat, genel, s, Duzey::Iki, anaHesap, yil);
    RaporTablosu t;
    t.sutunlar = Sutunlar();
    if (o.siniflar.isEmpty())
        return t;

    // The grand sums add the running figures of every line, not the rows
    // shown: they are the form's closing figures as it has always printed them.
    double gDevreden = 0, gGiren = 0, gGirenTutar = 0, gToplam = 0, gToplamTutar = 0, gKalan = 0, gKalanTutar = 0;
    int sira = 0;
    for (qsizetype i = 0; i < o.siniflar.size(); ++i) {
        const Sinif& sinif = o.siniflar[i];
        const bool tuketim = sinif.HesapKod.startsWith(QStringLiteral("150"));
        // "order by Birimi"; lines of one unit keep the table's order.
        const auto bas = o.satirlar.begin() + qsizetype(o.bas[i]);
        const auto son = o.satirlar.begin() + qsizetype(o.bas[i + 1]);
        std::stable_sort(bas, son, [&](const Satir& a, const Satir& b) {
            return o.birimSirasi[a.birimi] < o.birimSirasi[b.birimi];
        });

        double oncekiGiren = 0, oncekiCikan = 0, yilGiren = 0, yilGirenTutar = 0, yilCikan = 0, yilCikanTutar = 0;
        QString birim;
        for (auto satir = bas; satir != son; ++satir) {
            const double m = satir->miktar, c = satir->cikan, p = satir->fiyat;
            // A durable class never shows an exit here: the write-off mark
            // is not read by this form.
            if (satir->yil == Yil::Onceki) {
                oncekiGiren += m;
                if (tuketim)
                    oncekiCikan += c;
            } else if (satir->yil == Yil::Ayni) {
                yilGiren += m;
                yilGirenTutar += m * p;
                if (tuketim) {
                    yilCikan += c;
                    yilCikanTutar += c * p;
                }
            }
            // Value from earlier years reaches no column of this form.
            const double devreden = oncekiGiren - oncekiCikan;
            const double toplam = devreden + yilGiren;
            const double toplamTutar = yilGirenTutar;
            const double kalan = toplam - yilCikan;
            const double kalanTutar = toplamTutar - yilCikanTutar;
            gDevreden += devreden;
            gGiren += yilGiren;
            gGirenTutar += yilGirenTutar;
            gToplam += toplam;
            gToplamTutar += toplamTutar;
            gKalan += kalan;
            gKalanTutar += kalanTutar;

            // A row at the first line of each unit, with the figures run up
            // so far: they go on across the units of the class.
            const QString& birimi = o.birimler[satir->birimi];
            if (birimi != birim) {
                QStringList h(HucreSayisi);
                h[Sira] = QString::number(++sira);
                h[Kod] = sinif.HesapKod;
                h[Ad] = sinif.HesapAd;
                h[Birimi] = birimi;
                h[DevredenMiktar] = ParaYaz(devreden);
                h[GirenMiktar] = ParaYaz(yilGiren);
                h[GirenTutar] = ParaYaz(yilGirenTutar);
                h[ToplamMiktar] = ParaYaz(toplam);
                h[ToplamTutar] = ParaYaz(toplamTutar);
                h[CikanMiktar] = ParaYaz(yilCikan);
                h[CikanTutar] = ParaYaz(yilCikanTutar);
                h[DevirMiktar] = ParaYaz(kalan);
                h[DevirTutar] = ParaYaz(kalanTutar);
                t.satirlar.append({SatirTuru::Kayit, h});
                birim = birimi;
            }
        }
    }

    QStringList h(HucreSayisi);
    h[Birimi] = QStringLiteral("GenelToplam");
    h[DevredenMiktar] = ParaYaz(gDevreden);
    h[GirenMiktar] = ParaYaz(gGiren);
    h[GirenTutar] = ParaYaz(gGirenTutar);
    h[ToplamMiktar] = ParaYaz(gToplam);
    h[ToplamTutar] = ParaYaz(gToplamTutar);
    h[DevirMiktar] = ParaYaz(gKalan);
    h[DevirTutar] = ParaYaz(gKalanTutar);
    t.satirlar.append({SatirTuru::Kapanis, h});

    // The class on screen when the walk ends names the table.
    const Sinif& sonSinif = o.siniflar.last();
    t.baslik = QStringLiteral("   ") + QStringLiteral("  TAŞINIR HESAP CETVELİ  ") + sonSinif.HesapAd;
    t.tasinirAdi = sonSinif.HesapAd;
    t.tasinirKod = sonSinif.HesapKod;
    return t;
}

RaporKagidi Kagit(const SabitSatiri& sabit)
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 46;
    k.devam = 5;
    const BasSatiri ayirici{{{1, QString(285, u'-')}}, false};
    k.ilkBas = GenisBasliklar(QStringLiteral("2. Düzey"), QStringLiteral(" Gelecek Yıla Devreden"));
    k.ilkBas.prepend(ayirici);
    k.ilkBas.append(ayirici);
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> { return Basilan(satir); };
    const auto memur = [&](const char* alan) { return sabit.value(QString::fromLatin1(alan)).trimmed(); };
    // Tab(75) after the long line at Tab(5) goes to the next line, as Print did.
    k.kapanis = {{{5, QStringLiteral("Yukarıdaki miktar ve tutarlar Harcama Birimi Taşınır Yönetim Hesabı "
                                     "Cetvellerinde gösterilen miktar ve tutarlarla uyumludur.   ")}},
                 {{75, QStringLiteral(" Taşınır Konsolide Görevlisi ")}},
                 {},
                 {},
                 {{75, memur("AyniyatMemuru2")}},
                 {{75, memur("AyniyatMemuru1")}}};
    return k;
}

QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo)
{
    QList<KagitSatiri> b = RaporBelgeleri::UstBilgi(sabit, tablo,
                                                    {QStringLiteral("İl ve İlçenin                  Adı  : "),
                                                     QStringLiteral("Harcama Biriminin      Adı  : "),
                                                     QStringLiteral("Ambarın                       Adı  : "),
                                                     QStringLiteral("Muhasebe Biriminin     Adı  : ")});
    b[1][2].metin = QStringLiteral("1.Düzey Kod  : ") + tablo.tasinirKod;
    return b;
}

}
