#include "cikti.h"
#include "hata_metni.h"
#include "yazici.h"

#include <QFontInfo>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

class HazirOlmayanCikti : public BellekCikti
{
public:
    bool Hazir() const override { return false; }
};

class YazamayanCikti : public Cikti
{
public:
    void Yaz(const Belge&) override { throw YaziciHatasi(); }
};

// "a,b/c|d": the texts of a page joined by ',', pages by '/', documents by '|'.
QString Ozet(const QList<Belge>& belgeler)
{
    QStringList belgeMetinleri;
    for (const Belge& belge : belgeler) {
        QStringList sayfaMetinleri;
        for (const Sayfa& sayfa : belge) {
            QStringList metinler;
            for (const SayfaYazisi& yazi : sayfa.yazilar)
                metinler.append(yazi.metin);
            sayfaMetinleri.append(metinler.join(u','));
        }
        belgeMetinleri.append(sayfaMetinleri.join(u'/'));
    }
    return belgeMetinleri.join(u'|');
}

}

class TstYazici : public QObject
{
    Q_OBJECT

private slots:
    // Arial's numbers in units of 2048 to the em: average character width 904,
    // ascent + descent + line gap 2355, digit 1139. Reports laid out for it must fit.
    void olculer_data()
    {
        QTest::addColumn<double>("punto");
        QTest::addColumn<bool>("kalin");
        QTest::newRow("7") << 7.0 << false;
        QTest::newRow("8.5") << 8.5 << false;
        QTest::newRow("12 kalin") << 12.0 << true;
    }

    void olculer()
    {
        QFETCH(double, punto);
        QFETCH(bool, kalin);
        const QFontInfo bilgi(YaziFontu(punto, kalin));
        QCOMPARE(bilgi.family(), u"Liberation Sans"_s);
        QCOMPARE(bilgi.bold(), kalin);

        Yazici p;
        p.FontSize = punto;
        const double em = punto * 20;
        QVERIFY(qAbs(p.TextHeight() - em * 2355 / 2048) < em * 0.001);
        QVERIFY(qAbs(p.TextWidth(u"0"_s) - em * 1139 / 2048) < em * 0.001);
        QVERIFY(qAbs(p.SutunGenisligi() - em * 904 / 2048) < em * 0.001);
    }

    void print_data()
    {
        QTest::addColumn<QPointF>("baslangic");
        QTest::addColumn<QList<PrintOgesi>>("ogeler");
        QTest::addColumn<SatirSonu>("son");
        QTest::addColumn<QList<SayfaYazisi>>("yazilar");
        QTest::addColumn<QPointF>("sonKonum");

        const Yazici o;
        const double c = o.SutunGenisligi();
        const double h = o.TextHeight();
        const double ab = o.TextWidth(u"ab"_s);

        QTest::newRow("ardisik") << QPointF() << QList<PrintOgesi>{u"ab"_s, u"cd"_s} << YeniSatir
                                 << QList<SayfaYazisi>{{0, 0, u"ab"_s}, {ab, 0, u"cd"_s}}
                                 << QPointF(0, h);
        QTest::newRow("kod ve ad") << QPointF() << QList<PrintOgesi>{Tab(2), u"001"_s, Tab(23), u"Masa"_s}
                                   << YeniSatir << QList<SayfaYazisi>{{c, 0, u"001"_s}, {22 * c, 0, u"Masa"_s}}
                                   << QPointF(0, h);
        QTest::newRow("Tab(0) ilk sutun") << QPointF() << QList<PrintOgesi>{Tab(0), u"x"_s} << YeniSatir
                                          << QList<SayfaYazisi>{{0, 0, u"x"_s}} << QPointF(0, h);
        QTest::newRow("gecilen sutun alt satirda")
            << QPointF() << QList<PrintOgesi>{u"ab"_s, Tab(1), u"x"_s} << YeniSatir
            << QList<SayfaYazisi>{{0, 0, u"ab"_s}, {0, h, u"x"_s}} << QPointF(0, 2 * h);
        QTest::newRow("ayni sutunda kalir") << QPointF() << QList<PrintOgesi>{Tab(4), Tab(4), u"x"_s}
                                            << YeniSatir << QList<SayfaYazisi>{{3 * c, 0, u"x"_s}}
                                            << QPointF(0, h);
        QTest::newRow("noktali virgul") << QPointF() << QList<PrintOgesi>{u"ab"_s} << AyniSatir
                                        << QList<SayfaYazisi>{{0, 0, u"ab"_s}} << QPointF(ab, 0);
        QTest::newRow("bos satir") << QPointF() << QList<PrintOgesi>{} << YeniSatir
                                   << QList<SayfaYazisi>{} << QPointF(0, h);
        QTest::newRow("verilen konumdan")
            << QPointF(1000, 500) << QList<PrintOgesi>{u"ab"_s, Tab(2), u""_s, u"x"_s} << AyniSatir
            << QList<SayfaYazisi>{{1000, 500, u"ab"_s}, {c, 500 + h, u"x"_s}}
            << QPointF(c + o.TextWidth(u"x"_s), 500 + h);
    }

    void print()
    {
        QFETCH(QPointF, baslangic);
        QFETCH(QList<PrintOgesi>, ogeler);
        QFETCH(SatirSonu, son);
        QFETCH(QList<SayfaYazisi>, yazilar);

        BellekCikti cikti;
        Yazici p(&cikti);
        p.CurrentX = baslangic.x();
        p.CurrentY = baslangic.y();
        p.Print(ogeler, son);
        QTEST(QPointF(p.CurrentX, p.CurrentY), "sonKonum");
        p.EndDoc();

        const QList<SayfaYazisi> basilan = cikti.belgeler.value(0).value(0).yazilar;
        QCOMPARE(basilan.size(), yazilar.size());
        for (qsizetype i = 0; i < yazilar.size(); ++i) {
            QCOMPARE(basilan[i].metin, yazilar[i].metin);
            QCOMPARE(QPointF(basilan[i].x, basilan[i].y), QPointF(yazilar[i].x, yazilar[i].y));
        }
    }

    // Steps: a word prints itself, N is NewPage, E EndDoc, K KillDoc; each of
    // these three brings the position back to the origin.
    void belge_data()
    {
        QTest::addColumn<QString>("adimlar");
        QTest::addColumn<QString>("belgeler");
        QTest::newRow("iki sayfa") << u"a b N c E"_s << u"a,b/c"_s;
        QTest::newRow("sondaki NewPage bos sayfa vermez") << u"a N E"_s << u"a"_s;
        QTest::newRow("bastaki NewPage bos sayfa") << u"N a E"_s << u"/a"_s;
        QTest::newRow("art arda NewPage") << u"a N N b E"_s << u"a//b"_s;
        QTest::newRow("KillDoc atar") << u"a N b K c E"_s << u"c"_s;
        QTest::newRow("bos belge gitmez") << u"E"_s << u""_s;
        QTest::newRow("iki belge") << u"a E b E"_s << u"a|b"_s;
    }

    void belge()
    {
        QFETCH(QString, adimlar);
        QFETCH(QString, belgeler);

        BellekCikti cikti;
        Yazici p(&cikti);
        for (const QString& adim : adimlar.split(u' ')) {
            if (adim == u"N")
                p.NewPage();
            else if (adim == u"E")
                p.EndDoc();
            else if (adim == u"K")
                p.KillDoc();
            else {
                p.Print({adim}, AyniSatir);
                continue;
            }
            QCOMPARE(QPointF(p.CurrentX, p.CurrentY), QPointF(0, 0));
        }
        QCOMPARE(Ozet(cikti.belgeler), belgeler);
    }

    // An orientation set while a page is open waits for the next page.
    void yon()
    {
        BellekCikti cikti;
        Yazici p(&cikti);
        p.Orientation = 2;
        p.Print({u"a"_s});
        p.Orientation = 1;  // too late for this page
        p.Print({u"b"_s});
        p.NewPage();
        p.Print({u"c"_s});
        p.Orientation = 2;
        p.NewPage();
        p.NewPage();
        p.EndDoc();

        const Belge& belge = cikti.belgeler.first();
        QCOMPARE(Ozet(cikti.belgeler), u"a,b/c/"_s);
        using Yon = QPageLayout::Orientation;
        QCOMPARE(QList<Yon>({belge[0].yon, belge[1].yon, belge[2].yon}),
                 QList<Yon>({QPageLayout::Landscape, QPageLayout::Portrait, QPageLayout::Landscape}));
        QVERIFY(belge[0].KagitBoyu().width() > belge[0].KagitBoyu().height());
        QCOMPARE(belge[0].KagitBoyu(), belge[1].KagitBoyu().transposed());
    }

    void ciktiHazirDegil_data()
    {
        QTest::addColumn<bool>("ciktiVar");
        QTest::newRow("cikti yok") << false;
        QTest::newRow("yazici hazir degil") << true;
    }

    void ciktiHazirDegil()
    {
        QFETCH(bool, ciktiVar);
        HazirOlmayanCikti hazirOlmayan;
        Yazici p(ciktiVar ? &hazirOlmayan : nullptr);

        p.Print();  // draws nothing, starts no page
        QCOMPARE(HataMetni<YaziciHatasi>([&] { p.Print({u"a"_s}); }), u"Belge yazdırılamıyor.."_s);
        QVERIFY_THROWS_EXCEPTION(YaziciHatasi, p.NewPage());
        p.EndDoc();
        QVERIFY(hazirOlmayan.belgeler.isEmpty());
    }

    void yazamayanCikti()
    {
        YazamayanCikti yazamayan;
        BellekCikti bellek;
        Yazici p(&yazamayan);
        p.Print({u"a"_s});
        QVERIFY_THROWS_EXCEPTION(YaziciHatasi, p.EndDoc());

        // The failed document is gone: the next one starts clean.
        p.CiktiSec(&bellek);
        p.Print({u"b"_s});
        p.EndDoc();
        QCOMPARE(Ozet(bellek.belgeler), u"b"_s);
    }
};

QTEST_MAIN(TstYazici)
#include "tst_yazici.moc"
