#include "cikti.h"
#include "gecici_veri.h"
#include "rapor_belgesi.h"
#include "sayim_cetveli.h"
#include "veri.h"
#include "veritabani.h"
#include "yil_devri.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace SayimDokum;
using namespace YilDevri;

// The count and inventory table on hand-made lines, the figures worked out
// below; the report year is 2025.
class TstSayimCetveli : public QObject, protected GeciciVeri
{
    Q_OBJECT

    void satir(int fisNo, const QString& tarih, const QString& kod, const QString& miktar, const QString& cikan,
               const QString& fiyat, const QString& fcinss = {}, const QString& birimi = u"ADET"_s)
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, FCinss, Satir, HesapKod, Miktar, Cikan, "
                                  "BirimFiyat, Birimi) values (?, ?, 'G', ?, 1, ?, ?, ?, ?, ?)"_s,
                                  {tarih, fisNo, fcinss, kod, miktar, cikan, fiyat, birimi});
    }

    RaporTablosu cetvel(const QString& anaHesap = {}, const QString& altHesap = {})
    {
        RaporSuzgeci s;
        s.Tarih = QDate(1900, 1, 1), s.Tarih1 = QDate(2025, 12, 31);
        return Hesapla(veri().Ayniyat(), veri().Genel(), s, anaHesap, altHesap);
    }

private slots:
    void init()
    {
        Yenile();
        veri().Genel().Calistir(u"Delete from HESAP_K"_s);
        // Classes in the plan's order; a 10-character code and one without
        // lines give no row, a first-level code is no class.
        for (const QString& kod : {u"150 01 01"_s, u"253 01 01"_s, u"254 01 01"_s, u"255 01 01"_s, u"255 01 010"_s,
                                   u"255 01"_s})
            veri().Genel().Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, ?)"_s, {kod, u"Ad "_s + kod});
        // Consumables: earlier 6 in at 2, 1 out at 2; in the year 5 out at 2.
        satir(1, u"31.12.2024"_s, u"150 01 01 001"_s, u"6"_s, u"1"_s, u"2"_s);
        satir(2, u"01.01.2025"_s, u"150 01 01 002"_s, {}, u"5"_s, u"2"_s);
        // A durable item issued in the year by a write-off only: 2 at 3.
        satir(3, u"10.05.2025"_s, u"254 01 01 001"_s, {}, u"2"_s, u"3"_s, u"D"_s);
        // Durable: earlier 10 in at 5, 3 issued without a write-off (counts
        // nothing), 2 written off at 5; in the year 4 in at 7 and 1 written
        // off at 7 on the last day; a line of the next year counts nothing.
        satir(9, u"31.12.2024"_s, u"255 01 01 001"_s, u"10"_s, u"3"_s, u"5"_s, {}, u"KG"_s);
        satir(4, u"15.06.2024"_s, u"255 01 01 002"_s, {}, u"2"_s, u"5"_s, u"D"_s);
        satir(5, u"01.01.2025"_s, u"255 01 01 001"_s, u"4,0"_s, {}, u"7"_s);
        satir(6, u"31.12.2025"_s, u"255 01 01 001"_s, {}, u"1"_s, u"7"_s, u"D"_s, u"METRE"_s);
        satir(7, u"01.01.2026"_s, u"255 01 01 001"_s, u"100"_s, {}, u"1"_s);
    }

    // Each class from its own lines; the closing sums over all classes.
    void yilMantigi()
    {
        const QList<RaporSatiri> r = cetvel().satirlar;
        QCOMPARE(r.size(), 4);
        // 150: carried 6 - 1 = 5, its value 6 x 2 = 12 with the issue not
        // taken off; Toplam 5 and 12; out 5 and 10; carry-over 0 (blank) and 2.
        QCOMPARE(r[0].hucreler, (QStringList{u"1"_s, u"150 01 01"_s, u"Ad 150 01 01"_s, u"ADET"_s, u"5,00"_s, {}, {},
                                            {}, u"5,00"_s, u"12,00"_s, u"5,00"_s, u"10,00"_s, {}, u"2,00"_s}));
        // 254: only the year's write-off: carry-over -2 and -6.
        QCOMPARE(r[1].hucreler, (QStringList{u"2"_s, u"254 01 01"_s, u"Ad 254 01 01"_s, u"ADET"_s, {}, {}, {}, {},
                                            {}, {}, u"2,00"_s, u"6,00"_s, u"-2,00"_s, u"-6,00"_s}));
        // 255: carried 10 - 2 = 8, value 50; in 4 and 28; Toplam 12 and 78;
        // out 1 and 7; carry-over 11 and 71. Birimi of voucher 9, the last
        // in FisNo order, not of the last written.
        QCOMPARE(r[2].hucreler, (QStringList{u"3"_s, u"255 01 01"_s, u"Ad 255 01 01"_s, u"KG"_s, u"8,00"_s, {},
                                            u"4,00"_s, u"28,00"_s, u"12,00"_s, u"78,00"_s, u"1,00"_s, u"7,00"_s,
                                            u"11,00"_s, u"71,00"_s}));
        QCOMPARE(r[3].tur, SatirTuru::Kapanis);
        QCOMPARE(r[3].hucreler, (QStringList{{}, {}, {}, u"GenelToplam"_s, u"13,00"_s, {}, u"4,00"_s, u"28,00"_s,
                                            u"17,00"_s, u"90,00"_s, {}, {}, u"9,00"_s, u"67,00"_s}));
    }

    // HesapNo4's first-level code narrows the classes, the header names the
    // last class walked, an account without lines gives no closing row.
    void hesapSecimi()
    {
        QCOMPARE(cetvel({}, u"150 01"_s).satirlar.first().hucreler.at(Kod), u"150 01 01"_s);
        QCOMPARE(cetvel(u"255"_s).tasinirAdi, u"Ad 255 01 010"_s);
        QVERIFY(cetvel(u"253"_s).satirlar.isEmpty());
    }

    // 8, 46, 5: 39 rows on the wide first page, 42 on the narrow next; the
    // closing row's label cut to six places, then the signatures.
    void kagit()
    {
        RaporTablosu t = cetvel();
        t.satirlar = QList<RaporSatiri>(81, t.satirlar.first()) << t.satirlar.last();
        BellekCikti cikti;
        int sayfaNo = 1;
        auto belge = RaporBelgeleri::Kagit(cikti, Kagit({{u"SayimBaskan"_s, u" AHMET "_s}}), 8.5, 2, sayfaNo);
        belge->Ekle(t);
        belge->Bitir();
        QList<QStringList> sayfalar;
        for (const Sayfa& sayfa : cikti.belgeler.value(0)) {
            sayfalar << QStringList();
            for (const SayfaYazisi& y : sayfa.yazilar)
                sayfalar.last() << y.metin;
        }
        QCOMPARE(sayfalar.size(), 3);
        QCOMPARE(sayfalar[0].count(u"150 01 01"_s), 39);
        QCOMPARE(sayfalar[1].count(u"150 01 01"_s), 42);
        QVERIFY(sayfalar[0].contains(u"GeçenYılDevreden"_s) && sayfalar[0].filter(u"GeçenYıldan"_s).isEmpty());
        QCOMPARE(sayfalar[1].filter(u"GeçenYıldan"_s).size(), 1);
        QVERIFY(sayfalar[1].first().startsWith(QString(100, u'-')));
        const qsizetype genel = sayfalar[2].indexOf(u"GenelT"_s);
        QVERIFY(genel >= 0 && genel < sayfalar[2].indexOf(u"AHMET"_s));
        QVERIFY(sayfalar[2].contains(u"TMY Örnek. 13"_s));
    }
};

QTEST_MAIN(TstSayimCetveli)
#include "tst_sayim_cetveli.moc"
