#include "cikti.h"
#include "gecici_veri.h"
#include "hesap_cetveli.h"
#include "kesin_hesap.h"
#include "rapor_belgesi.h"
#include "veritabani.h"
#include "yil_devri.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace YilDevri;

// The account table and the final account table on one hand-made data set:
// a consumable class (ADET and PAKET lines), a durable class with write-off
// lines, and classes without lines.
class TstYilDevri : public QObject, protected GeciciVeri
{
    Q_OBJECT

    void satir(int fisNo, int satirNo, const QString& tarih, const QString& kod, const QVariant& birimi,
               const QString& miktar, const QString& cikan, const QString& fiyat, const QString& fcinss = {})
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, FCinss, Satir, HesapKod, Birimi, Miktar, "
                                  "Cikan, BirimFiyat) values (?, ?, 'G', ?, ?, ?, ?, ?, ?, ?)"_s,
                                  {tarih, fisNo, fcinss, satirNo, kod, birimi, miktar, cikan, fiyat});
    }

    static QStringList hucreler(const RaporSatiri& r, int ilk = Sira, int son = DevirTutar)
    {
        return r.hucreler.mid(ilk, son - ilk + 1);
    }

    static RaporSuzgeci suzgec(int sonYil)
    {
        RaporSuzgeci s;
        s.Tarih = QDate(1900, 1, 1), s.Tarih1 = QDate(sonYil, 12, 31);
        return s;
    }

    RaporTablosu hesapCetveli(const QString& anaHesap = {})
    {
        return HesapCetveliRaporu::Toplu(veri().Ayniyat(), veri().Genel(), suzgec(2026), anaHesap);
    }

    RaporTablosu kesinHesap(const QString& calisYil, const QString& anaHesap = {})
    {
        return KesinHesapRaporu::Toplu(veri().Ayniyat(), veri().Genel(), suzgec(2027), anaHesap, calisYil);
    }

private slots:
    void init()
    {
        Yenile();
        Veritabani& g = veri().Genel();
        g.Calistir(u"delete from HESAP_K"_s);
        for (const auto& [kod, ad] : {std::pair(u"150 01"_s, u"Kırtasiye Grubu"_s), {u"150 01 01"_s, u"Kırtasiye"_s},
                                      {u"150 01 02"_s, u"Temizlik"_s}, {u"253 01"_s, u"Tesisler"_s},
                                      {u"255 01"_s, u"Mobilya Grubu"_s}, {u"255 01 01"_s, u"Mobilya"_s},
                                      {u"150 01 01 001"_s, u"Kalem"_s}, {u"150"_s, u"İlkmadde"_s}})
            g.Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, ?)"_s, {kod, ad});
        const QString k = u"150 01 01 001"_s, d = u"255 01 01 001"_s;
        satir(3, 1, u"31.12.2025"_s, k, u"ADET"_s, u"10"_s, {}, u"2"_s);
        satir(1, 1, u"15.03.2025"_s, k, u"ADET"_s, {}, u"4"_s, u"2"_s);
        satir(10, 1, u"01.01.2026"_s, k, u"PAKET"_s, u"5"_s, {}, u"300"_s);
        satir(5, 1, u"31.12.2026"_s, k, u"ADET"_s, {}, u"2"_s, u"2"_s);
        satir(9, 1, u"01.01.2027"_s, k, u"ADET"_s, u"100"_s, {}, u"2"_s);
        satir(1, 1, u"10.06.2024"_s, d, u"ADET"_s, u"3"_s, {}, u"100"_s);
        satir(2, 1, u"01.02.2025"_s, d, QVariant(), {}, u"1"_s, u"100"_s, u"D"_s);
        satir(3, 1, u"05.05.2026"_s, d, u"ADET"_s, {}, u"1"_s, u"100"_s, u"D"_s);
        satir(3, 2, u"06.05.2026"_s, d, u"ADET"_s, {}, u"1"_s, u"100"_s);
    }

    // Lines in Birimi order: ADET (10 in 2025, 4 out in 2025, 2 out on
    // 31.12.2026), then PAKET (5 x 300 on 01.01.2026); the 2027 line is past
    // Tarih1. A row at each unit's first line with the figures run up so
    // far; the durable class shows no exit and no value carried over.
    void hesapCetveliSatirlari()
    {
        const RaporTablosu t = hesapCetveli();
        QCOMPARE(t.satirlar.size(), 4);
        QCOMPARE(hucreler(t.satirlar[0]), (QStringList{u"1"_s, u"150 01 01"_s, u"Kırtasiye"_s, u"ADET"_s, u"10,00"_s,
                                                       {}, {}, {}, u"10,00"_s, {}, {}, {}, u"10,00"_s, {}}));
        QCOMPARE(hucreler(t.satirlar[1]), (QStringList{u"2"_s, u"150 01 01"_s, u"Kırtasiye"_s, u"PAKET"_s,
                                                       u"6,00"_s, {}, u"5,00"_s, u"1.500,00"_s, u"11,00"_s,
                                                       u"1.500,00"_s, u"2,00"_s, u"4,00"_s, u"9,00"_s, u"1.496,00"_s}));
        // The unit remembered is emptied at each class; the NULL unit of the
        // write-off line sorts first and adds no row.
        QCOMPARE(hucreler(t.satirlar[2]), (QStringList{u"3"_s, u"255 01 01"_s, u"Mobilya"_s, u"ADET"_s, u"3,00"_s,
                                                       {}, {}, {}, u"3,00"_s, {}, {}, {}, u"3,00"_s, {}}));
        // The grand sums add each line's running figures: quantities
        // 10+6+6+6 and 0+3+3+3 (Devreden), 10+6+6+11 and 0+3+3+3 (Toplam),
        // 10+6+4+9 and 0+3+3+3 (Kalan); Kalan value 0+0-4+1496.
        QCOMPARE(t.satirlar[3].tur, SatirTuru::Kapanis);
        QCOMPARE(hucreler(t.satirlar[3]), (QStringList{{}, {}, {}, u"GenelToplam"_s, u"37,00"_s, {}, u"5,00"_s,
                                                       u"1.500,00"_s, u"42,00"_s, u"1.500,00"_s, {}, {}, u"38,00"_s,
                                                       u"1.492,00"_s}));
        QCOMPARE(t.baslik, u"     TAŞINIR HESAP CETVELİ  Mobilya"_s);

        // A main account narrows the classes; one without classes gives no rows.
        const RaporTablosu d = hesapCetveli(u"255"_s);
        QCOMPARE(d.satirlar.size(), 2);
        QCOMPARE(d.satirlar[0].hucreler[Sira], u"1"_s);
        QCOMPARE(d.satirlar[1].hucreler[DevredenMiktar], u"9,00"_s);
        QVERIFY(hesapCetveli(u"254"_s).satirlar.isEmpty());
    }

    // Working year 2026, lines up to 2027 fetched. Consumables: Devreden
    // 10-4 = 6 (20-8 = 12), the base 6-4 = 2 (12-8 = 4), Toplam 2+5 = 7
    // (4+1500), Devir 7-2 = 5 (1504-4). Durable: 3 in, 1 written off in
    // 2025: Devreden 2 (200), base 1 (100); the 2026 write-off takes it to
    // 0, the issue without a write-off counts nowhere. Tesisler has no line.
    void kesinHesapSatirlari()
    {
        const RaporTablosu t = kesinHesap(u"2026"_s);
        QCOMPARE(t.satirlar.size(), 3);
        // Birimi of the last line by FisNo: 10 after 9.
        QCOMPARE(hucreler(t.satirlar[0]), (QStringList{u"1"_s, u"150 01"_s, u"Kırtasiye Grubu"_s, u"PAKET"_s,
                                                       u"6,00"_s, u"12,00"_s, u"5,00"_s, u"1.500,00"_s, u"7,00"_s,
                                                       u"1.504,00"_s, u"2,00"_s, u"4,00"_s, u"5,00"_s, u"1.500,00"_s}));
        QCOMPARE(hucreler(t.satirlar[1]), (QStringList{u"2"_s, u"255 01"_s, u"Mobilya Grubu"_s, u"ADET"_s, u"2,00"_s,
                                                       u"200,00"_s, {}, {}, u"1,00"_s, u"100,00"_s, u"1,00"_s,
                                                       u"100,00"_s, {}, {}}));
        // The base, not the shown Devreden, is summed: 2+1.
        QCOMPARE(hucreler(t.satirlar[2]), (QStringList{{}, {}, {}, u"GenelToplam"_s, u"3,00"_s, {}, u"5,00"_s,
                                                       u"1.500,00"_s, u"8,00"_s, u"1.604,00"_s, {}, {}, u"5,00"_s,
                                                       u"1.500,00"_s}));
        QCOMPARE(t.tasinirKod, u"255 01"_s);

        QCOMPARE(kesinHesap(u"2026"_s, u"150"_s).satirlar.size(), 2);
        // A working year before every line: the rows stand, every figure empty.
        const RaporTablosu bos = kesinHesap(u"2023"_s);
        QCOMPARE(bos.satirlar.size(), 3);
        for (const RaporSatiri& r : bos.satirlar)
            QCOMPARE(hucreler(r, DevredenMiktar).join(QString()), QString());
    }

    // The heads of the first and the next pages, the rows at the count
    // table's places, the signatures of the constants.
    void kagitlar()
    {
        RaporTablosu t = hesapCetveli();
        const RaporSatiri ilk = t.satirlar[0];
        // 8 + 39 rows pass 46: the 40th row opens page 2.
        for (int i = 0; i < 40; ++i)
            t.satirlar.prepend(ilk);
        const SabitSatiri sabit{{u"AyniyatMemuru1"_s, u" Ali Veli "_s}, {u"AyniyatMemuru2"_s, u"Ayşe Kaya"_s},
                                {u"KurumAdi"_s, u"Okul"_s}, {u"ilKod"_s, u"06"_s}};
        t.ustBilgi = HesapCetveliRaporu::UstBilgi(sabit, t);
        QCOMPARE(t.ustBilgi[1][2].metin, u"1.Düzey Kod  : 255 01 01"_s);

        const auto sayfalar = [](const RaporTablosu& tablo, const RaporKagidi& kagit) {
            BellekCikti cikti;
            int sayfaNo = 1;
            auto belge = RaporBelgeleri::Kagit(cikti, kagit, 8.5, 2, sayfaNo);
            belge->Ekle(tablo);
            belge->Bitir();
            QList<QStringList> l;
            for (const Sayfa& s : cikti.belgeler.value(0)) {
                QStringList m;
                for (const SayfaYazisi& y : s.yazilar)
                    m << y.metin;
                l << m;
            }
            return l;
        };
        const QList<QStringList> h = sayfalar(t, HesapCetveliRaporu::Kagit(sabit));
        QCOMPARE(h.size(), 2);
        for (const QStringList& s : h) {
            QCOMPARE(s.count(QString(285, u'-')), 2);
            QVERIFY(s.contains(u" Gelecek Yıla Devreden"_s));
        }
        QCOMPARE(h[0].count(u"150 01 01"_s), 39);
        QVERIFY(h[1].contains(u"255 01 01"_s));
        QCOMPARE(h[1].mid(h[1].size() - 3), (QStringList{u" Taşınır Konsolide Görevlisi "_s, u"Ayşe Kaya"_s,
                                                          u"Ali Veli"_s}));

        RaporTablosu k = kesinHesap(u"2026"_s);
        const RaporSatiri kIlk = k.satirlar[0];
        for (int i = 0; i < 40; ++i)
            k.satirlar.prepend(kIlk);
        k.ustBilgi = KesinHesapRaporu::UstBilgi(sabit, k);
        QCOMPARE(k.ustBilgi[0][2].metin, u"Taşınır Kod  : 255 01  Mobilya Grubu"_s);
        const QList<QStringList> kh = sayfalar(k, KesinHesapRaporu::Kagit());
        QCOMPARE(kh.size(), 2);
        QVERIFY(kh[0].contains(QString(275, u'-')) && kh[0].contains(QString(266, u'-')));
        QVERIFY(kh[0].contains(u" Taşınır 1. Düzey"_s) && !kh[0].contains(QString(146, u'-')));
        QCOMPARE(kh[1].count(QString(146, u'-')), 2);
        QVERIFY(kh[1].contains(u"GeçenYıldan Devreden    "_s));
        QCOMPARE(kh[1].last().trimmed(), u"1.500,00"_s);
    }
};

QTEST_MAIN(TstYilDevri)
#include "tst_yil_devri.moc"
