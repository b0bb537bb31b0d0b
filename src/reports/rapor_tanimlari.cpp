#include "rapor_tanimlari.h"

#include "dayanik_liste.h"
#include "dayanik_liste_kagidi.h"
#include "defter.h"
#include "defter_kagidi.h"
#include "depo_takip.h"
#include "depo_takip_kagidi.h"
#include "devir_teslim.h"
#include "devir_teslim_kagidi.h"
#include "hesap_cetveli.h"
#include "kesin_hesap.h"
#include "rapor_belgesi.h"
#include "saat.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_kagidi.h"
#include "sayim_cetveli.h"
#include "veri.h"
#include "yil_sonu_denetimi.h"

#include <algorithm>

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

// The tables of the units that have lines, one after the other.
template <typename Liste>
void birimBirim(const Liste& liste, const SabitSatiri& sabit, const std::function<bool(RaporTablosu&&)>& her)
{
    for (qsizetype i = 0; i < liste.Sayi(); ++i) {
        DayanikListesi::Sonuc sonuc = liste.Hesapla(i);
        if (sonuc.tablo.satirlar.isEmpty())
            continue;
        sonuc.tablo.ustBilgi = RaporBelgeleri::UstBilgi(sabit, sonuc.tablo, DayanikListesi::Etiketler());
        if (!her(std::move(sonuc.tablo)))
            return;
    }
}

// The unit lists, every unit that has lines, as the walk answers Yes. One
// entry for each Hangi: the paper's headings differ.
RaporTanimi dayanikListe(const QString& hangi)
{
    RaporTanimi r;
    r.hangiler = hangi;
    if (hangi == u"D") {
        r.ad = QStringLiteral("dayanik-liste");
        r.aciklama = QStringLiteral("birim birim dayanıklı taşınır listesi (TMY-8)");
    } else {
        r.ad = QStringLiteral("birim-tuketim-liste");
        r.aciklama = QStringLiteral("birim birim tüketim listesi");
    }
    r.kagit = [hangi](const RaporSuzgeci& s, const SabitSatiri&) { return DayanikListesi::Kagit(s, hangi); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString& hangi, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        birimBirim(DayanikListesi::Liste(veri.Ayniyat(), veri.Genel(), s, hangi, DayanikListesi::Birimler(veri.Genel())),
                   sabit, her);
    };
    return r;
}

// The account tables' screens open from the beginning of the records, to
// the working year's today.
RaporSuzgeci kayitBasindan(const QString& calisYil, const QString& hangi)
{
    RaporSuzgeci s = RaporSuzgecleri::Acilis(calisYil, hangi);
    s.Tarih = QDate(1900, 1, 1);
    return s;
}

// The whole table as one; a table without a line of any class writes no
// file.
void satirliTablo(RaporTablosu& t, const SabitSatiri& sabit,
                  QList<KagitSatiri> (*ustBilgi)(const SabitSatiri&, const RaporTablosu&),
                  const std::function<bool(RaporTablosu&&)>& her)
{
    if (!std::any_of(t.satirlar.cbegin(), t.satirlar.cend(),
                     [](const RaporSatiri& r) { return r.tur == SatirTuru::Kayit; }))
        return;
    t.ustBilgi = ustBilgi(sabit, t);
    her(std::move(t));
}

// --hesap names the main account (150, 253, ...), as a click on T2 does.
RaporTanimi hesapCetveli()
{
    RaporTanimi r;
    r.ad = QStringLiteral("hesap-cetveli");
    r.acilis = kayitBasindan;
    r.aciklama = QStringLiteral("taşınır hesap cetveli (TMY-15), --hesap ana hesap");
    r.kagit = [](const RaporSuzgeci&, const SabitSatiri& sabit) { return HesapCetveliRaporu::Kagit(sabit); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString&, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        RaporTablosu t = HesapCetveliRaporu::Toplu(veri.Ayniyat(), veri.Genel(), s, s.HesapKod5);
        satirliTablo(t, sabit, HesapCetveliRaporu::UstBilgi, her);
    };
    return r;
}

// The second durable goods list of every unit, of all dates.
RaporTanimi dayanikListe2()
{
    RaporTanimi r;
    r.ad = QStringLiteral("dayanik-liste2");
    r.aciklama = QStringLiteral("birim birim dayanıklı taşınır listesi 2 (tüm tarihler, düşümler dahil)");
    r.kagit = [](const RaporSuzgeci&, const SabitSatiri&) { return DayanikListesi::Kagit2(); };
    r.yuru = [](Veri& veri, const RaporSuzgeci&, const QString&, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        birimBirim(DayanikListesi::Liste2(veri.Ayniyat(), DayanikListesi::Birimler(veri.Genel())), sabit, her);
    };
    return r;
}

// The working year is that of the end date.
RaporTanimi kesinHesap()
{
    RaporTanimi r;
    r.ad = QStringLiteral("kesin-hesap");
    r.acilis = kayitBasindan;
    r.aciklama = QStringLiteral("kesin hesap icmal cetveli (TMY-17), --hesap ana hesap");
    r.kagit = [](const RaporSuzgeci&, const SabitSatiri&) { return KesinHesapRaporu::Kagit(); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString&, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        const QDate yil = s.Tarih1.isValid() ? s.Tarih1 : Saat::Bugun();
        RaporTablosu t =
            KesinHesapRaporu::Toplu(veri.Ayniyat(), veri.Genel(), s, s.HesapKod5, yil.toString(QStringLiteral("yyyy")));
        satirliTablo(t, sabit, KesinHesapRaporu::UstBilgi, her);
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
        t.ustBilgi = RaporBelgeleri::UstBilgi(sabit, t, RaporBelgeleri::Etiketler());
        her(std::move(t));
    };
    return r;
}

// The count and inventory table as the menu opens it: from 01.01.1900,
// the report year that of the end date; --hesap names the main account, as
// a click on T2 does.
RaporTanimi sayimCetveli()
{
    RaporTanimi r;
    r.ad = QStringLiteral("sayim-cetveli");
    r.hangiler = QStringLiteral("D");
    r.aciklama = QStringLiteral("taşınır sayım ve döküm cetveli (TMY-13), --hesap ana hesap");
    r.kagit = [](const RaporSuzgeci&, const SabitSatiri& sabit) { return SayimDokum::Kagit(sabit); };
    r.yuru = [](Veri& veri, const RaporSuzgeci& s, const QString&, const SabitSatiri& sabit,
                const std::function<bool(RaporTablosu&&)>& her) {
        RaporTablosu t = SayimDokum::Hesapla(veri.Ayniyat(), veri.Genel(), s, s.HesapKod5, QString());
        satirliTablo(t, sabit, [](const SabitSatiri& sabit, const RaporTablosu& t) {
            return RaporBelgeleri::UstBilgi(sabit, t, RaporBelgeleri::Etiketler());
        }, her);
    };
    return r;
}

// The handover minutes and store tracking as their screens open: from
// the beginning of the records, the used-up materials left out.
RaporTanimi ozellikRaporu(const QString& ad, const QString& aciklama,
                          RaporTablosu (*tablo)(Veritabani&, const RaporSuzgeci&, bool),
                          const std::function<RaporKagidi(int yon)>& kagit)
{
    RaporTanimi r;
    r.ad = ad;
    r.aciklama = aciklama;
    r.kagit = [kagit, yon = r.yon](const RaporSuzgeci&, const SabitSatiri&) { return kagit(yon); };
    r.yuru = [tablo](Veri& veri, const RaporSuzgeci& s, const QString&, const SabitSatiri&,
                     const std::function<bool(RaporTablosu&&)>& her) {
        RaporTablosu t = tablo(veri.Ayniyat(), s, false);
        if (!t.satirlar.isEmpty())
            her(std::move(t));
    };
    return r;
}

RaporTanimi devirTeslim()
{
    return ozellikRaporu(QStringLiteral("devir-teslim"), QStringLiteral("ambar devir ve teslim tutanağı (TMY-11)"),
                         DevirTeslimTutanagi::Tablo, DevirTeslimTutanagi::Kagit);
}

RaporTanimi depoTakip()
{
    return ozellikRaporu(QStringLiteral("depo-takip"),
                         QStringLiteral("depo takip: gelen, çıkan, kullanımda, ambarda kalan"), DepoTakibi::Tablo,
                         [](int) { return DepoTakibi::Kagit(); });
}

}

const QList<RaporTanimi>& RaporTanimlari::Hepsi()
{
    static const QList<RaporTanimi> raporlar = {defter(),
                                                 dayanikListe(QStringLiteral("D")),
                                                 dayanikListe(QStringLiteral("T")),
                                                 dayanikListe2(),
                                                 sayimTutanagi(),
                                                 sayimCetveli(),
                                                 hesapCetveli(),
                                                 kesinHesap(),
                                                 yilSonuDenetimi(),
                                                 devirTeslim(),
                                                 depoTakip()};
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
                        const QString& dosya, const std::function<bool(const RaporTablosu&)>& yaninda)
{
    const SabitSatiri sabit = SabitKayit::Getir(veri.Genel()).value_or(SabitSatiri());
    int sayfaNo = 1;
    const std::unique_ptr<RaporBelgesi> belge =
        RaporBelgeleri::Dosya(dosya, rapor.kagit(s, sabit), rapor.yaziBoy, rapor.yon, sayfaNo);
    int tablolar = 0;
    bool durdu = false;
    rapor.yuru(veri, s, hangi, sabit, [&](RaporTablosu&& tablo) {
        belge->Ekle(tablo);
        ++tablolar;
        durdu = yaninda && !yaninda(tablo);
        return !durdu;
    });
    if (tablolar > 0 && !durdu)
        belge->Bitir();
    return durdu ? 0 : tablolar;
}
