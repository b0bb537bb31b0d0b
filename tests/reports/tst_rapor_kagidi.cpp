#include "cikti.h"
#include "defter.h"
#include "defter_kagidi.h"
#include "rapor_belgesi.h"

#include <QFontMetricsF>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace Defter;

// The report paper on hand-made ledger rows, read from the recorded pages.
class TstRaporKagidi : public QObject
{
    Q_OBJECT

    static RaporSatiri satir(const QString& solMiktar, const QString& sagMiktar, const QString& solFiyat = u"2,00"_s)
    {
        QStringList h(HucreSayisi);
        h[SolMiktar] = solMiktar, h[SagMiktar] = sagMiktar, h[SolFiyat] = solFiyat, h[SolTarih] = u"01.02.2026"_s;
        return {SatirTuru::Kayit, h};
    }

    static RaporTablosu tablo(int satirlar)
    {
        RaporTablosu t;
        t.baslik = u"KALEM   -    Tüketim Malzemeleri DEFTERİ           150.01"_s;
        t.tasinirAdi = u"KALEM"_s, t.tasinirKod = u"150.01"_s, t.olcuBirimi = u"ADET"_s;
        t.ustBilgi = RaporBelgeleri::UstBilgi({{u"ilAdi"_s, u" ANKARA "_s}, {u"ilKod"_s, u"06"_s}}, t, Etiketler());
        t.sutunlar = Sutunlar();
        for (int i = 0; i < satirlar; ++i)
            t.satirlar << satir(u"1,00"_s, QString());
        return t;
    }

    static RaporSuzgeci suzgec()
    {
        RaporSuzgeci s;
        s.Tarih = QDate(2026, 1, 1), s.Tarih1 = QDate(2026, 3, 14);
        return s;
    }

    // The pages of one document of the tables, SayfaNo starting at 1.
    static Belge yaz(const QList<RaporTablosu>& tablolar, int satirSayi, int& sayfaNo, double yaziBoy = 8)
    {
        BellekCikti cikti;
        auto belge = RaporBelgeleri::Kagit(cikti, Kagit(suzgec(), satirSayi), yaziBoy, 2, sayfaNo);
        for (const RaporTablosu& t : tablolar)
            belge->Ekle(t);
        belge->Bitir();
        return cikti.belgeler.value(0);
    }

    static QStringList metinler(const Sayfa& s)
    {
        QStringList l;
        for (const SayfaYazisi& y : s.yazilar)
            l << y.metin;
        return l;
    }

    static const SayfaYazisi* bul(const Sayfa& s, const QString& metin)
    {
        for (const SayfaYazisi& y : s.yazilar)
            if (y.metin.trimmed() == metin.trimmed())
                return &y;
        return nullptr;
    }

    // The print numbers of the rows (texts at the left edge under the headings).
    static QStringList siralar(const Sayfa& s)
    {
        const double baslikY = bul(s, u"Sıra"_s)->y;
        QStringList l;
        for (const SayfaYazisi& y : s.yazilar)
            if (y.x == 0 && y.y > baslikY)
                l << y.metin;
        return l;
    }

private slots:
    // The title in red at 14 points, the header block, the band with the
    // period and the page number, bold headings; rows without quantities
    // are not printed, and the print number goes only to rows with a left
    // price.
    void sayfaBasiVeSatirlar()
    {
        RaporTablosu t = tablo(0);
        t.satirlar = {satir(u"1,00"_s, {}), satir({}, u"0,50"_s, {}), satir({}, {}), satir(u"0,00"_s, u"3,00"_s)};
        int sayfaNo = 1;
        const Belge b = yaz({t}, 53, sayfaNo);
        QCOMPARE(b.size(), 1);
        const Sayfa& s = b[0];
        QCOMPARE(s.yon, QPageLayout::Landscape);
        QCOMPARE(s.yazilar.first().punto, 14.0);
        QCOMPARE(s.yazilar.first().renk, QColor(255, 0, 0));
        for (const char* metin : {"İl ve İlçenin                     Adı  : ANKARA", " Kod : 06", " Ölçü Birimi  : ADET",
                                  "01.01.2026 -14.03.2026"})
            QVERIFY2(bul(s, QString::fromUtf8(metin)), metin);
        QVERIFY(bul(s, u"ÇıkanDeğer"_s)->kalin);
        QVERIFY(!bul(s, u"01.02.2026"_s)->kalin);
        QCOMPARE(bul(s, u"ÇIKIŞ"_s)->y, bul(s, u"1"_s)->y);
        QCOMPARE(siralar(s), (QStringList{u"1"_s, u"2"_s}));
        QVERIFY(bul(s, u"0,50"_s));
    }

    // The first page counts from 8, the next from 4, a page ends when the
    // counter passes SatirSayi: with 10, three rows and then seven a page.
    // The check follows every row, the last one too.
    void sayfaSonuSayacla_data()
    {
        QTest::addColumn<int>("satirSayi");
        QTest::addColumn<int>("satirlar");
        QTest::addColumn<QList<int>>("sayfalar");
        QTest::newRow("ilk sayfa dolmadan") << 10 << 2 << QList<int>{2};
        QTest::newRow("ilk sayfa tam") << 10 << 3 << QList<int>{3, 0};
        QTest::newRow("ikinci sayfa tam") << 10 << 10 << QList<int>{3, 7, 0};
        QTest::newRow("ikinci sayfada bir") << 10 << 4 << QList<int>{3, 1};
        QTest::newRow("SatirSayi bos") << 0 << 2 << QList<int>{1, 1, 0};
    }
    void sayfaSonuSayacla()
    {
        QFETCH(int, satirSayi);
        QFETCH(int, satirlar);
        QFETCH(QList<int>, sayfalar);
        int sayfaNo = 1;
        const Belge b = yaz({tablo(satirlar)}, satirSayi, sayfaNo);
        QList<int> sayilar;
        for (const Sayfa& s : b) {
            sayilar << int(siralar(s).size());
            QVERIFY(bul(s, u"KimeVerildiği"_s));
            QVERIFY(bul(s, QString::number(&s - b.data() + 1)));
        }
        QCOMPARE(sayilar, sayfalar);
        QCOMPARE(sayfaNo, int(sayfalar.size()));
    }

    // Each table starts a page and numbers on; a large type breaks the page
    // before a row would leave the paper.
    void tablolarVeKagidinAlti()
    {
        int sayfaNo = 1;
        Belge b = yaz({tablo(1), tablo(1)}, 53, sayfaNo);
        QCOMPARE(b.size(), 2);
        QCOMPARE(sayfaNo, 2);
        QVERIFY(bul(b[1], u"2"_s));

        // A YaziBoy that reads as 0 prints at the smallest size.
        sayfaNo = 1;
        QCOMPARE(yaz({tablo(1)}, 53, sayfaNo, 0).value(0).yazilar.last().punto, EnKucukPunto);

        sayfaNo = 1;
        b = yaz({tablo(45)}, 53, sayfaNo, 12);
        QVERIFY(b.size() > 1);
        const double alt = b[0].KagitBoyu().height() - 2 * KenarTwip;
        for (const Sayfa& s : b)
            for (const SayfaYazisi& y : s.yazilar)
                QVERIFY2(y.y + QFontMetricsF(YaziFontu(y.punto, y.kalin)).height() <= alt + 1, qPrintable(y.metin));
    }

    // A text wider than the room to the next column is set smaller and cut;
    // it never reaches the next text.
    void genisMetinSigdirilir()
    {
        RaporTablosu t = tablo(1);
        t.satirlar[0].hucreler[SolTarih] = QString(40, u'W');
        int sayfaNo = 1;
        const Sayfa s = yaz({t}, 53, sayfaNo).value(0);
        const SayfaYazisi* uzun = nullptr;
        for (const SayfaYazisi& y : s.yazilar)
            if (y.metin.startsWith(u"WW"_s))
                uzun = &y;
        QVERIFY(uzun);
        QCOMPARE(uzun->punto, EnKucukPunto);
        QVERIFY(uzun->metin.endsWith(u"…"_s));
        const SayfaYazisi* sonraki = bul(s, u"1,00"_s);
        QVERIFY(sonraki);
        QVERIFY(uzun->x + QFontMetricsF(YaziFontu(uzun->punto, false)).horizontalAdvance(uzun->metin) <= sonraki->x);
    }
};

QTEST_MAIN(TstRaporKagidi)
#include "tst_rapor_kagidi.moc"
