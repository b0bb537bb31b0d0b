#include "rapor_tanimlari.h"

#include "defter.h"
#include "defter_kagidi.h"
#include "rapor_belgesi.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_kagidi.h"
#include "veri.h"

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

// The count minutes as the menu opens them (Hangi "D"): every class of the
// plan from 01.01.1900 to today, one table, the committee's signatures.
RaporTanimi sayimTutanagi()
{
    RaporTanimi r;
    r.ad = QStringLiteral("sayim-tutanagi");
    r.hangiler = QStringLiteral("D");
    r.aciklama = QStringLiteral("sayım tutanağı (TMY-12), kayıtlara göre ambardaki miktar");
    r.kagit = [](const RaporSuzgeci& s, const SabitSatiri& sabit) { return SayimTutanagi::Kagit(s, sabit); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString&, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        RaporTablosu t = SayimTutanagi::Tablo(veri.Ayniyat(), veri.Genel(), s);
        // Only the closing row: no class had lines, nothing to count.
        if (t.satirlar.size() < 2)
            return;
        t.ustBilgi = RaporBelgeleri::UstBilgi(sabit, t, SayimTutanagi::Etiketler());
        her(std::move(t));
    };
    return r;
}

}

const QList<RaporTanimi>& RaporTanimlari::Hepsi()
{
    static const QList<RaporTanimi> raporlar = {defter(), sayimTutanagi()};
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
