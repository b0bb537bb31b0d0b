#include "yil_sonu.h"

#include "bicim.h"
#include "defter.h"
#include "hata.h"
#include "rapor_belgesi.h"
#include "rapor_tanimlari.h"
#include "sabit_kayit.h"
#include "sayim_tutanak.h"
#include "veri.h"
#include "yil_devri.h"

#include <QDate>
#include <QDir>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace YilSonu {

namespace {

// Where a source's figures stand in its rows: the cell of the code (-1:
// the table's class) and of each figure (-1: the table has none).
struct Hucreler
{
    int kod;
    std::array<int, RakamSayisi> rakam;
};

const Hucreler& hucreleri(Kaynak k)
{
    // The names of the figures are also those of the cells: qualified.
    static const Hucreler yilDevri = {YilDevri::Kod,
                                      {YilDevri::DevredenMiktar, YilDevri::DevredenTutar, YilDevri::GirenMiktar,
                                       YilDevri::GirenTutar, YilDevri::CikanMiktar, YilDevri::CikanTutar,
                                       YilDevri::DevirMiktar, YilDevri::DevirTutar}};
    static const Hucreler tutanak = {::SayimTutanagi::HesapKod,
                                     {-1, -1, -1, -1, -1, -1, ::SayimTutanagi::Kayitlara, -1}};
    static const Hucreler defter = {
        -1, {-1, -1, ::Defter::SolMiktar, ::Defter::SolTutar, ::Defter::SagMiktar, ::Defter::SagTutar, -1, -1}};
    switch (k) {
    case SayimTutanagi:
        return tutanak;
    case Defter:
        return defter;
    default:
        return yilDevri;
    }
}

// The final account table's rows are first-level classes: it gives the
// main accounts only.
bool verir(Kaynak k, Rakam r, bool anaHesap)
{
    return hucreleri(k).rakam[r] >= 0 && (anaHesap || k != KesinHesap);
}

const QString& kaynakAdi(int k)
{
    static const QString adlar[KaynakSayisi] = {u"TMY-13"_s, u"TMY-15"_s, u"TMY-17"_s, u"TMY-12"_s, u"Defter"_s};
    return adlar[k];
}

const QString& rakamAdi(int r)
{
    static const QString adlar[RakamSayisi] = {u"Devreden Miktar"_s, u"Devreden Tutar"_s, u"Giren Miktar"_s,
                                               u"Giren Tutar"_s,     u"Çıkan Miktar"_s,   u"Çıkan Tutar"_s,
                                               u"Devir Miktar"_s,    u"Devir Tutar"_s};
    return adlar[r];
}

// A printed amount in hundredths: "1.402,50" is 140250, an empty cell 0.
qint64 yuzde(const QString& hucre)
{
    const std::optional<double> sayi = SayiDegeri(hucre.trimmed());
    return sayi ? std::llround(*sayi * 100) : 0;
}

QString yuzdeMetni(qint64 deger)
{
    return Format(double(deger) / 100, u"#,##0.00"_s);
}

// The second-level codes are nine characters, "150 01 01"; the main
// accounts three.
constexpr int ikinciDuzey = 9;
constexpr int anaHesapBoyu = 3;

enum Sutun { HesapSutunu, RakamSutunu, IlkKaynak, FarkSutunu = IlkKaynak + KaynakSayisi, SutunSayisi };

struct Karsilastirma
{
    bool fark = false;
    QStringList hucreler;
};

// The row of one figure of an account: the value of each table that gives
// it, those apart from the most given value marked.
Karsilastirma karsilastir(const std::array<std::array<qint64, RakamSayisi>, KaynakSayisi>& degerler, Rakam r,
                          bool anaHesap)
{
    Karsilastirma k;
    k.hucreler = QStringList(KaynakSayisi, QString());
    std::map<qint64, int> kac;
    for (int i = 0; i < KaynakSayisi; ++i)
        if (verir(Kaynak(i), r, anaHesap))
            ++kac[degerler[i][r]];
    if (kac.empty())
        return k;
    k.fark = kac.size() > 1;
    qint64 cogu = kac.begin()->first;
    int enCok = 0;
    // The first source in column order wins a tie, so that the count table
    // stands as the reference where the others split.
    for (int i = 0; i < KaynakSayisi; ++i)
        if (verir(Kaynak(i), r, anaHesap) && kac[degerler[i][r]] > enCok) {
            enCok = kac[degerler[i][r]];
            cogu = degerler[i][r];
        }
    for (int i = 0; i < KaynakSayisi; ++i)
        if (verir(Kaynak(i), r, anaHesap))
            k.hucreler[i] = yuzdeMetni(degerler[i][r]) + (degerler[i][r] != cogu ? u" *"_s : u"  "_s);
    return k;
}

const QList<RaporSutunu>& sutunlar()
{
    static const QList<RaporSutunu> s = [] {
        QList<RaporSutunu> l = {{u"Hesap"_s, 1300}, {u"Rakam"_s, 1700}};
        for (int i = 0; i < KaynakSayisi; ++i)
            l.append({kaynakAdi(i), 1900, Qt::AlignRight, true});
        l.append({u"Fark"_s, 700});
        return l;
    }();
    return s;
}

void tekTablo(const QString& dosya, const RaporKagidi& kagit, double yaziBoy, int yon, const RaporTablosu& tablo)
{
    int sayfaNo = 1;
    const std::unique_ptr<RaporBelgesi> pdf = RaporBelgeleri::Pdf(dosya, kagit, yaziBoy, yon, sayfaNo);
    pdf->Ekle(tablo);
    pdf->Bitir();
}

// A table of the set: the report, its side, its place in the summary
// (-1: none), its file and sheet.
struct Parca
{
    QString rapor;
    QString hangi;
    int kaynak;
    QString dosya;
    QString sayfa;
};

const QList<Parca>& parcalar()
{
    static const QList<Parca> p = {
        {u"sayim-cetveli"_s, u"D"_s, SayimCetveli, u"TMY-13_sayim_ve_dokum_cetveli"_s, u"TMY-13"_s},
        {u"hesap-cetveli"_s, {}, HesapCetveli, u"TMY-15_hesap_cetveli"_s, u"TMY-15"_s},
        {u"kesin-hesap"_s, {}, KesinHesap, u"TMY-17_kesin_hesap_icmal_cetveli"_s, u"TMY-17"_s},
        {u"sayim-tutanagi"_s, u"D"_s, SayimTutanagi, u"TMY-12_sayim_tutanagi"_s, u"TMY-12"_s},
        {u"dayanik-liste"_s, u"D"_s, -1, u"TMY-8_dayanikli_tasinir_listesi"_s, u"TMY-8"_s},
        {u"defter"_s, u"T"_s, Defter, u"tuketim_malzemeleri_defteri"_s, u"Defter T"_s},
        {u"defter"_s, u"D"_s, Defter, u"dayanikli_tasinirlar_defteri"_s, u"Defter D"_s},
    };
    return p;
}

}

void Ozet::Ekle(Kaynak kaynak, const RaporTablosu& tablo)
{
    const Hucreler& h = hucreleri(kaynak);
    for (const RaporSatiri& satir : tablo.satirlar) {
        if (satir.tur != SatirTuru::Kayit)
            continue;
        const QString kod = h.kod < 0 ? tablo.tasinirKod : satir.hucreler.value(h.kod);
        if (kod.size() < anaHesapBoyu)
            continue;
        std::array<qint64, RakamSayisi> degerler{};
        for (int r = 0; r < RakamSayisi; ++r)
            if (h.rakam[r] >= 0)
                degerler[r] = yuzde(satir.hucreler.value(h.rakam[r]));
        const auto ekle = [&](const QString& hesap) {
            std::array<qint64, RakamSayisi>& toplam = m_hesaplar[hesap][kaynak];
            for (int r = 0; r < RakamSayisi; ++r)
                toplam[r] += degerler[r];
        };
        ekle(kod.left(anaHesapBoyu));
        if (kod.size() >= ikinciDuzey && kaynak != KesinHesap)
            ekle(kod.left(ikinciDuzey));
    }
}

int Ozet::Farklar() const
{
    int farklar = 0;
    for (const auto& [hesap, degerler] : m_hesaplar)
        for (int r = 0; r < RakamSayisi; ++r)
            farklar += karsilastir(degerler, Rakam(r), hesap.size() == anaHesapBoyu).fark;
    return farklar;
}

RaporTablosu Ozet::Tablo(const QString& yil, const QList<YilSonuDenetimi::Bulgu>& bulgular) const
{
    RaporTablosu t;
    t.baslik = u"YIL SONU ÖZETİ  -  %1"_s.arg(yil);
    t.sutunlar = sutunlar();
    for (const auto& [hesap, degerler] : m_hesaplar) {
        const bool anaHesap = hesap.size() == anaHesapBoyu;
        for (int r = 0; r < RakamSayisi; ++r) {
            const Karsilastirma k = karsilastir(degerler, Rakam(r), anaHesap);
            if (!anaHesap && !k.fark)
                continue;
            QStringList hucreler = {hesap, rakamAdi(r)};
            hucreler += k.hucreler;
            hucreler << (k.fark ? u"FARK"_s : QString());
            t.satirlar.append({SatirTuru::Kayit, hucreler});
        }
    }
    t.satirlar.append({SatirTuru::Baslik, {u"2. düzey kodlardan yalnız tabloların ayrıldığı rakamlar gösterilir."_s}});
    t.satirlar.append({SatirTuru::Ayirici, {}});
    t.satirlar.append({SatirTuru::Baslik, {u"Yıl sonu denetimi"_s}});
    for (int d = 0; d < YilSonuDenetimi::DenetimSayisi; ++d) {
        const qsizetype sayi = std::count_if(bulgular.cbegin(), bulgular.cend(),
                                             [d](const YilSonuDenetimi::Bulgu& b) { return b.denetim == d; });
        t.satirlar.append({SatirTuru::Baslik, {YilSonuDenetimi::Sonucu(YilSonuDenetimi::Denetim(d), sayi)}});
    }
    return t;
}

RaporKagidi Kagit()
{
    static const int tablar[SutunSayisi] = {1, 12, 30, 50, 70, 90, 110, 131};
    // Amounts stand right-aligned in their columns, the headings over them.
    const auto yerinde = [](int i, const QString& metin) {
        return TabMetin{tablar[i], i >= IlkKaynak && i < FarkSutunu ? metin.rightJustified(18) : metin};
    };
    static const QString ayirici(230, u'-');
    RaporKagidi k;
    k.ilkSayac = 6;
    k.sinir = 46;
    k.devam = 5;
    // Not in bold: a bold line counts its Tab columns wider, and the
    // headings would drift off the amounts under them.
    KagitSatiri basliklar;
    for (int i = 0; i < SutunSayisi; ++i)
        basliklar << yerinde(i, sutunlar().at(i).baslik);
    k.ilkBas = {{{{1, ayirici}}, false}, {basliklar, false}, {{{1, ayirici}}, false}};
    k.satir = [yerinde](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> {
        if (satir.tur == SatirTuru::Ayirici)
            return KagitSatiri{{1, ayirici}};
        if (satir.tur == SatirTuru::Baslik)
            return KagitSatiri{{1, satir.hucreler.value(0)}};
        KagitSatiri s;
        for (int i = 0; i < SutunSayisi; ++i)
            s << yerinde(i, satir.hucreler.value(i));
        return s;
    };
    return k;
}

Sonuc Yaz(Veri& veri, const QString& yil, const QString& klasor, const QList<YilSonuDenetimi::Bulgu>& bulgular,
          const Ilerleme& ilerleme)
{
    Sonuc sonuc;
    const QDir dizin(klasor);
    if (!QDir().mkpath(dizin.absolutePath()))
        throw Hata(u"Klasör oluşturulamadı: %1"_s.arg(dizin.absolutePath()));
    const auto dosya = [&](const QString& ad, const QString& uzanti) {
        return dizin.absoluteFilePath(u"%1_%2.%3"_s.arg(yil, ad, uzanti));
    };
    const int adimlar = int(parcalar().size()) + 2;
    int adim = 1;

    if (!ilerleme(u"Yıl sonu denetimi"_s, adim, adimlar))
        return {{}, {}, 0, 0, true};
    sonuc.bulgular = bulgular.size();
    const RaporTablosu denetim = YilSonuDenetimi::Tablo(bulgular, yil);
    const RaporTanimi& denetimRaporu = *RaporTanimlari::Bul(u"yil-sonu-denetimi"_s);
    tekTablo(dosya(u"yil_sonu_denetimi"_s, u"pdf"_s), denetimRaporu.kagit({}, {}), denetimRaporu.yaziBoy,
             denetimRaporu.yon, denetim);
    sonuc.dosyalar << dosya(u"yil_sonu_denetimi"_s, u"pdf"_s);

    const std::unique_ptr<RaporBelgeleri::XlsxKitabi> kitap = RaporBelgeleri::Xlsx(dosya(u"yil_sonu"_s, u"xlsx"_s));
    kitap->YeniSayfa(u"Denetim"_s);
    kitap->Ekle(denetim);

    Ozet ozet;
    const QDate yilBasi(yil.toInt(), 1, 1);
    for (const Parca& parca : parcalar()) {
        ++adim;
        const RaporTanimi& rapor = *RaporTanimlari::Bul(parca.rapor);
        RaporSuzgeci s = rapor.acilis(yil, parca.hangi);
        s.Tarih1 = QDate(yilBasi.year(), 12, 31);
        // The ledgers of the year, the durable one too.
        if (parca.rapor == u"defter")
            s.Tarih = yilBasi;
        bool sayfaVar = false;
        bool durdu = false;
        const QString pdf = dosya(parca.dosya, u"pdf"_s);
        const int tablolar = RaporTanimlari::Yaz(rapor, veri, s, parca.hangi, pdf, [&](const RaporTablosu& t) {
            if (!sayfaVar)
                kitap->YeniSayfa(parca.sayfa);
            sayfaVar = true;
            kitap->Ekle(t);
            if (parca.kaynak >= 0)
                ozet.Ekle(Kaynak(parca.kaynak), t);
            durdu = !ilerleme(parca.sayfa, adim, adimlar);
            return !durdu;
        });
        if (durdu || (!sayfaVar && !ilerleme(parca.sayfa, adim, adimlar))) {
            sonuc.durdu = true;
            return sonuc;
        }
        if (tablolar > 0)
            sonuc.dosyalar << pdf;
    }

    ++adim;
    if (!ilerleme(u"Özet"_s, adim, adimlar)) {
        sonuc.durdu = true;
        return sonuc;
    }
    sonuc.ozet = ozet.Tablo(yil, bulgular);
    sonuc.farklar = ozet.Farklar();
    tekTablo(dosya(u"yil_sonu_ozeti"_s, u"pdf"_s), Kagit(), 8.5, 2, sonuc.ozet);
    sonuc.dosyalar << dosya(u"yil_sonu_ozeti"_s, u"pdf"_s);
    kitap->YeniSayfa(u"Özet"_s, true);
    kitap->Ekle(sonuc.ozet);
    kitap->Bitir();
    sonuc.dosyalar << dosya(u"yil_sonu"_s, u"xlsx"_s);
    return sonuc;
}

}
