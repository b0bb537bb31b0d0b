#include "rapor_tanimlari.h"

#include "defter.h"
#include "defter_kagidi.h"
#include "rapor_belgesi.h"
#include "veri.h"
#include "yil_sonu_denetimi.h"

namespace {

// The ledgers as F4 prints them class after class: 53 lines a page, the
// VAT added as the screen opens.
RaporTanimi defter()
{
    RaporTanimi r;
    r.ad = QStringLiteral("defter");
    r.hangiler = QStringLiteral("TD");
    r.aciklama = QStringLiteral("tüketim (T) ya da dayanıklı (D) taşınır defteri");
    r.yaziBoy = 8;
    r.kagit = [](const RaporSuzgeci& s, const SabitSatiri&) { return Defter::Kagit(s, 53); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString& hangi, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        Defter::Hepsi(veri.Ayniyat(), veri.Genel(), s, hangi, true, [&](const Defter::Sinif&, Defter::Sonuc&& sonuc) {
            if (sonuc.tablo.satirlar.isEmpty())
                return true;
            sonuc.tablo.ustBilgi = RaporBelgeleri::UstBilgi(sabit, sonuc.tablo, Defter::Etiketler());
            return her(std::move(sonuc.tablo));
        });
    };
    return r;
}

// The checks of the year the period starts in: that of --baslangic, else
// the working year the command line opens with.
RaporTanimi yilSonuDenetimi()
{
    RaporTanimi r;
    r.ad = QStringLiteral("yil-sonu-denetimi");
    r.aciklama = QStringLiteral("yıl sonu denetimi: başlangıç tarihinin yılının kayıtları");
    r.yon = 1;
    r.kagit = [](const RaporSuzgeci&, const SabitSatiri&) { return YilSonuDenetimi::Kagit(); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString&, const SabitSatiri&,
                const std::function<bool(RaporTablosu&&)>& her) {
        const QString yil = QString::number(s.Tarih.year());
        her(YilSonuDenetimi::Tablo(YilSonuDenetimi::Denetle(veri.Ayniyat(), veri.Genel(), yil), yil));
    };
    return r;
}

}

const QList<RaporTanimi>& RaporTanimlari::Hepsi()
{
    static const QList<RaporTanimi> raporlar = {defter(), yilSonuDenetimi()};
    return raporlar;
}

const RaporTanimi* RaporTanimlari::Bul(const QString& ad)
{
    for (const RaporTanimi& r : Hepsi())
        if (r.ad == ad)
            return &r;
    return nullptr;
}

int RaporTanimlari::Yaz(const RaporTanimi& rapor, Veri& veri, const RaporSuzgeci& s, const QString& hangi,
                        const QString& dosya)
{
    const SabitSatiri sabit = SabitKayit::Getir(veri.Genel()).value_or(SabitSatiri());
    int sayfaNo = 1;
    const std::unique_ptr<RaporBelgesi> belge =
        RaporBelgeleri::Dosya(dosya, rapor.kagit(s, sabit), rapor.yaziBoy, rapor.yon, sayfaNo);
    int tablolar = 0;
    rapor.yuru(veri, s, hangi, sabit, [&](RaporTablosu&& tablo) {
        belge->Ekle(tablo);
        ++tablolar;
        return true;
    });
    if (tablolar > 0)
        belge->Bitir();
    return tablolar;
}
