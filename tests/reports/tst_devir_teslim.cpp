#include "cikti.h"
#include "depo_takip.h"
#include "depo_takip_kagidi.h"
#include "devir_teslim.h"
#include "devir_teslim_kagidi.h"
#include "gecici_veri.h"
#include "rapor_belgesi.h"
#include "rapor_tanimlari.h"
#include "veri.h"
#include "veritabani.h"

#include <QtTest>

using namespace Qt::StringLiterals;

// The handover minutes and store tracking on small hand-made data: the
// rows the change of description forms, the sums that run on in the
// minutes and start afresh in the tracking, the papers' page breaks.
class TstDevirTeslim : public QObject, protected GeciciVeri
{
    Q_OBJECT

    void satir(const QString& tarih, const QString& ozellik, const QString& kod, const QString& miktar,
               const QString& cikan = {}, const QString& fcinss = {}, const QString& birimi = u"ADET"_s, int ambar = 1)
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, Satir, Ozellik, HesapKod, Miktar, Cikan, "
                                  "FCinss, Birimi, AmbarNo) values (?, 1, 'G', 1, ?, ?, ?, ?, ?, ?, ?)"_s,
                                  {tarih, ozellik, kod, miktar, cikan, fcinss, birimi, ambar});
    }

    // The rows' cells from SubItems(1) on, joined by '|'.
    static QStringList hucreler(const RaporTablosu& t)
    {
        QStringList l;
        for (const RaporSatiri& r : t.satirlar)
            l << r.hucreler.mid(1).join(u'|');
        return l;
    }
    QStringList tutanak(const RaporSuzgeci& s, bool biteni)
    {
        return hucreler(DevirTeslimTutanagi::Tablo(veri().Ayniyat(), s, biteni));
    }
    QStringList takip(const RaporSuzgeci& s, bool biteni)
    {
        return hucreler(DepoTakibi::Tablo(veri().Ayniyat(), s, biteni));
    }

    // The panel as the screens open in 2026: the start is overridden.
    static RaporSuzgeci yil2026()
    {
        RaporSuzgeci s;
        s.Tarih = QDate(2026, 1, 1), s.Tarih1 = QDate(2026, 12, 31);
        return s;
    }

    // In the walk's order: no description, Bant, Çay (Ç after C, not after
    // Z), DOSYA and Dosya (two spellings, capitals first), Zımba.
    void ornek()
    {
        satir(u"15.06.1990"_s, {}, u"150 01 01 009"_s, u"2"_s, {}, {}, u"KUTU"_s);  // the start is 1900
        satir(u"02.01.2026"_s, u"Zımba"_s, u"255 01 01 001"_s, u"4"_s);
        satir(u"02.01.2026"_s, u"Bant"_s, u"150 01 01 003"_s, u"2"_s, {}, {}, u"RULO"_s);
        satir(u"03.01.2026"_s, u"Bant"_s, u"150 01 01 003"_s, {}, u"2"_s, u"D"_s);
        satir(u"02.01.2026"_s, u"Çay"_s, u"150 01 01 001"_s, u"3"_s, u"3"_s);
        satir(u"02.01.2026"_s, u"DOSYA"_s, u"150 02 01 001"_s, u"1"_s);
        satir(u"02.01.2026"_s, u"Dosya"_s, u"150 02 01 002"_s, u"10"_s);
        satir(u"03.01.2026"_s, u"Dosya"_s, u"150 02 01 003"_s, {}, u"2,5"_s);
        satir(u"31.12.2026"_s, u"Zımba"_s, u"255 01 01 002"_s, {}, u"1"_s, u"D"_s);  // the last day counts
        satir(u"31.12.2026"_s, u"Zımba"_s, u"255 01 01 002"_s, {}, u"1"_s);
        satir(u"01.01.2027"_s, u"Zımba"_s, u"255 01 01 003"_s, u"100"_s);          // after the end
    }

private slots:
    void init() { Yenile(); }

    // K = Miktar - Cikan, the write-off mark not counted. The lines without a
    // description join Bant (2 + 2 - 2); Çay is used up and forms no row
    // unless "Biteni Göster". The unit is that of the first line, KUTU; the
    // code that of the material's last line.
    void tutanakSatirlari()
    {
        ornek();
        QCOMPARE(tutanak(yil2026(), false),
                 (QStringList{u"1|150 01 01 003|Bant|KUTU|2,00|2,00||"_s,
                              u"2|150 02 01 001|DOSYA|KUTU|1,00|1,00||"_s,
                              u"3|150 02 01 003|Dosya|KUTU|7,50|7,50||"_s,
                              u"4|255 01 01 002|Zımba|KUTU|2,00|2,00||"_s}));
        QCOMPARE(tutanak(yil2026(), true).at(1), u"2|150 01 01 001|Çay|KUTU||||"_s);
        QCOMPARE(tutanak(yil2026(), true).size(), 5);

        // One description, trimmed; the store; the code range.
        RaporSuzgeci s = yil2026();
        s.Ozellik = u" Zımba "_s;
        QCOMPARE(tutanak(s, false), QStringList{u"1|255 01 01 002|Zımba|ADET|2,00|2,00||"_s});
        s = yil2026();
        s.AmbarNo = u"2"_s;
        QCOMPARE(tutanak(s, false), QStringList());
        s.AmbarNo = u"1"_s, s.HesapKod5 = u"150 02"_s, s.HesapKod6 = u"150 02 99"_s;
        QCOMPARE(tutanak(s, false).size(), 2);
    }

    // Gelen, Çıkan = every issue + the written-off ones (Bant: 2 + 2 out of 2
    // in), Kullanımda = Gelen - written off, Ambarda Kalan = Gelen - every
    // issue. Each description starts afresh: the lines without one count
    // nowhere (Bant has 2 in, not 4), and Bant and Çay, nothing left in the
    // store, leave no row unless "Biteni Göster".
    void takipSatirlari()
    {
        ornek();
        QCOMPARE(takip(yil2026(), false),
                 (QStringList{u"150 02 01 001|DOSYA|1,00||1,00|1,00"_s,
                              u"150 02 01 003|Dosya|10,00|2,50|10,00|7,50"_s,
                              u"255 01 01 002|Zımba|4,00|3,00|3,00|2,00"_s}));
        QCOMPARE(takip(yil2026(), true).mid(0, 2),
                 (QStringList{u"150 01 01 003|Bant|2,00|4,00||"_s, u"150 01 01 001|Çay|3,00|3,00|3,00|"_s}));
    }

    // A used-up material's sums run on in the minutes: 1E+17 in and out, then
    // 1 in, and 1E+17 + 1 is 1E+17 in doubles (a step of 16 there), so the
    // stock of the last material reads 0. The tracking starts it afresh.
    void tukenenAktarilir()
    {
        satir(u"02.01.2026"_s, u"Çay"_s, u"150 01 01 001"_s, u"100000000000000000"_s, u"100000000000000000"_s);
        satir(u"02.01.2026"_s, u"Dosya"_s, u"150 02 01 001"_s, u"1"_s);
        QCOMPARE(tutanak(yil2026(), false), QStringList{u"1|150 02 01 001|Dosya|ADET||||"_s});
        QCOMPARE(takip(yil2026(), false), QStringList{u"150 02 01 001|Dosya|1,00||1,00|1,00"_s});

        // The command line writes one table; nothing when no line is found.
        const RaporTanimi* r = RaporTanimlari::Bul(u"devir-teslim"_s);
        QCOMPARE(RaporTanimlari::Yaz(*r, veri(), yil2026(), {}, klasor() + u"/d.csv"_s), 1);
        RaporSuzgeci s = yil2026();
        s.Tarih1 = QDate(2026, 1, 1);
        QCOMPARE(RaporTanimlari::Yaz(*RaporTanimlari::Bul(u"depo-takip"_s), veri(), s, {}, klasor() + u"/t.csv"_s), 0);
        QVERIFY(QFile::exists(klasor() + u"/d.csv"_s) && !QFile::exists(klasor() + u"/t.csv"_s));
    }

    // The minutes count from 4 and break past 52 (landscape): 49 rows on the
    // first page, under the line with the period and the two heading lines
    // ending in the page number. The next page repeats the headings with
    // page 2, counts from 2. Portrait takes 67 rows on the first page.
    void tutanakSayfalari()
    {
        RaporTablosu t;
        t.baslik = u"BAŞLIK"_s;
        t.ustBilgi = {{{2, u"DÖNEM"_s}}};
        for (int i = 1; i <= 68; ++i) {
            QStringList h(DevirTeslimTutanagi::HucreSayisi);
            h[DevirTeslimTutanagi::Sira] = QString::number(i);
            h[DevirTeslimTutanagi::SayimMiktari] = u"2,50"_s;
            t.satirlar << RaporSatiri{SatirTuru::Kayit, h};
        }
        const auto sayfalar = [&](int yon, int satir) {
            BellekCikti cikti;
            int sayfaNo = 1;
            RaporTablosu k = t;
            k.satirlar = t.satirlar.mid(0, satir);
            auto belge = RaporBelgeleri::Kagit(cikti, DevirTeslimTutanagi::Kagit(yon), 7, yon, sayfaNo);
            belge->Ekle(k);
            belge->Bitir();
            QList<QStringList> l;
            for (const Sayfa& s : cikti.belgeler.value(0)) {
                l << QStringList();
                for (const SayfaYazisi& y : s.yazilar)
                    l.last() << (y.kalin ? u"*"_s : QString()) + y.metin;
            }
            return l;
        };
        const QList<QStringList> yatay = sayfalar(2, 50);
        QCOMPARE(yatay.size(), 2);
        QCOMPARE(yatay[0].mid(0, 2), (QStringList{u"BAŞLIK"_s, u"DÖNEM"_s}));
        QCOMPARE(yatay[0].at(9), u"*Noksan    "_s);
        QCOMPARE(yatay[0].at(17), u"*Miktar          1"_s);
        // The row: Sıra, the amount right-aligned to 10.
        QCOMPARE(yatay[0].mid(18, 2), (QStringList{u"1"_s, u"       2,50"_s}));
        QCOMPARE(yatay[0].mid(yatay[0].size() - 2), (QStringList{u"49"_s, u"       2,50"_s}));
        QCOMPARE(yatay[1].at(15), u"*Miktar          2"_s);
        QCOMPARE(yatay[1].mid(16), (QStringList{u"50"_s, u"       2,50"_s}));
        const QList<QStringList> dikey = sayfalar(1, 68);
        QCOMPARE(dikey.size(), 2);
        QCOMPARE(dikey[0].at(dikey[0].size() - 2), u"67"_s);
        QCOMPARE(dikey[1].at(16), u"68"_s);
    }

    // Store tracking counts from 8 and breaks past 57: 50 rows, then the
    // separator and the heading with the next page number (SayfaNo 4, then
    // 5). The first amount is cut to 7.
    void takipSayfalari()
    {
        RaporTablosu t;
        for (int i = 1; i <= 51; ++i) {
            QStringList h(DepoTakibi::HucreSayisi);
            h[DepoTakibi::HesapKod] = QString::number(i);
            h[DepoTakibi::Gelen] = u"1.234.567,00"_s;
            t.satirlar << RaporSatiri{SatirTuru::Kayit, h};
        }
        BellekCikti cikti;
        int sayfaNo = 4;
        auto belge = RaporBelgeleri::Kagit(cikti, DepoTakibi::Kagit(), 7, 2, sayfaNo);
        belge->Ekle(t);
        belge->Bitir();
        const Belge b = cikti.belgeler.value(0);
        QCOMPARE(b.size(), 2);
        QCOMPARE(b[0].yazilar.at(0).metin, QString(126, u'-'));
        QCOMPARE(b[0].yazilar.at(6).metin, u"Ambarda Kalan             4"_s);
        QCOMPARE(b[0].yazilar.at(7).metin + b[0].yazilar.at(8).metin, u"11.234.5"_s);
        QCOMPARE(b[0].yazilar.at(b[0].yazilar.size() - 2).metin, u"50"_s);
        QCOMPARE(b[1].yazilar.at(6).metin + b[1].yazilar.at(7).metin, u"Ambarda Kalan             551"_s);
    }
};

QTEST_MAIN(TstDevirTeslim)
#include "tst_devir_teslim.moc"
