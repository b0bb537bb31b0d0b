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
               const QString& cikan = {}, const QString& fcinss = {}, const QString& birimi = u"ADET"_s)
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, Satir, Ozellik, HesapKod, Miktar, Cikan, "
                                  "FCinss, Birimi, AmbarNo) values (?, 1, 'G', 1, ?, ?, ?, ?, ?, ?, 1)"_s,
                                  {tarih, ozellik, kod, miktar, cikan, fcinss, birimi});
    }

    // The rows' cells from SubItems(1) on, joined by '|'.
    template <typename Rapor>
    QStringList hucreler(Rapor rapor, const RaporSuzgeci& s, bool biteni)
    {
        QStringList l;
        for (const RaporSatiri& r : rapor(veri().Ayniyat(), s, biteni).satirlar)
            l << r.hucreler.mid(1).join(u'|');
        return l;
    }
    QStringList tutanak(const RaporSuzgeci& s, bool biteni) { return hucreler(DevirTeslimTutanagi::Tablo, s, biteni); }
    QStringList takip(const RaporSuzgeci& s, bool biteni) { return hucreler(DepoTakibi::Tablo, s, biteni); }

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

    // The papers' pages as texts, a bold one marked '*': `satir` rows whose
    // cell `hucre` holds the row's number and cell `tutar` an amount.
    static QList<QStringList> sayfalar(const RaporKagidi& kagit, int yon, int satir, int hucre, int tutar)
    {
        RaporTablosu t;
        t.ustBilgi = {{{2, u"DÖNEM"_s}}};
        for (int i = 1; i <= satir; ++i) {
            QStringList h(10);
            h[hucre] = QString::number(i), h[tutar] = u"1.234.567,50"_s;
            t.satirlar << RaporSatiri{SatirTuru::Kayit, h};
        }
        BellekCikti cikti;
        int sayfaNo = 4;
        auto belge = RaporBelgeleri::Kagit(cikti, kagit, 7, yon, sayfaNo);
        belge->Ekle(t);
        belge->Bitir();
        QList<QStringList> l;
        for (const Sayfa& s : cikti.belgeler.value(0)) {
            l << QStringList();
            for (const SayfaYazisi& y : s.yazilar)
                l.last() << (y.kalin ? u"*"_s : QString()) + y.metin;
        }
        return l;
    }

    // The minutes count from 4 and break past 52 (landscape): 49 rows under
    // the period's line and two heading lines ending in SayfaNo; the next
    // page repeats the headings with the next number and counts from 2.
    // Portrait takes 67. Store tracking counts from 8 and breaks past 57: 50
    // rows, then the separator and its heading; its first amount is cut to 7.
    void sayfaSonu()
    {
        using namespace DevirTeslimTutanagi;
        const QList<QStringList> yatay = sayfalar(Kagit(2), 2, 50, Sira, SayimMiktari);
        QCOMPARE(yatay.size(), 2);
        QCOMPARE(yatay[0].mid(0, 1) + yatay[0].mid(4, 1), (QStringList{u"DÖNEM"_s, u"*Ölçü "_s}));
        QCOMPARE(yatay[0].mid(16, 3), (QStringList{u"*Miktar          4"_s, u"1"_s, u" 1.234.567,50"_s}));
        QCOMPARE(yatay[0].at(yatay[0].size() - 2), u"49"_s);
        QCOMPARE(yatay[1].mid(15), (QStringList{u"*Miktar          5"_s, u"50"_s, u" 1.234.567,50"_s}));
        const QList<QStringList> dikey = sayfalar(Kagit(1), 1, 68, Sira, SayimMiktari);
        QCOMPARE(dikey[0].at(dikey[0].size() - 2) + u'|' + dikey[1].at(16), u"67|68"_s);

        const QList<QStringList> takip = sayfalar(DepoTakibi::Kagit(), 2, 51, DepoTakibi::HesapKod, DepoTakibi::Gelen);
        QCOMPARE(takip.size(), 2);
        QCOMPARE(takip[0].mid(1, 1) + takip[0].mid(7, 3),
                 (QStringList{QString(126, u'-'), u"*Ambarda Kalan             4"_s, u"1"_s, u"1.234.5"_s}));
        QCOMPARE(takip[0].at(takip[0].size() - 2), u"50"_s);
        QCOMPARE(takip[1].mid(0, 1) + takip[1].mid(6),
                 (QStringList{QString(126, u'-'), u"*Ambarda Kalan             5"_s, u"51"_s, u"1.234.5"_s}));
    }
};

QTEST_MAIN(TstDevirTeslim)
#include "tst_devir_teslim.moc"
