#include "cikti.h"
#include "grid_yazdir.h"
#include "hata_metni.h"
#include "izgara.h"
#include "yazici.h"

#include <QStandardItemModel>
#include <QtTest>

#include <memory>
#include <set>

using namespace Qt::StringLiterals;

namespace {

// A heading row and the data rows K1.., with an empty row behind them as a
// grid on a screen has.
Izgara OrnekIzgara(int veriSatiri, const QList<int>& genislikler = {1000, 2000, 1500})
{
    QList<QStringList> satirlar{{u"Kod"_s, u"Ad"_s, u"Miktar"_s}};
    for (int i = 1; i <= veriSatiri; ++i)
        satirlar.append({u"K%1"_s.arg(i), u"Ad %1"_s.arg(i), QString::number(i)});
    satirlar.append(QStringList{u""_s, u""_s, u""_s});
    return Izgara(satirlar, genislikler);
}

Belge Yazdir(const Izgara& izgara, bool genis)
{
    BellekCikti cikti;
    Yazici p(&cikti);
    if (genis)
        GridYazdirGenis(p, izgara);
    else
        GridYazdir(p, u"Kurum - 01.02.2024"_s, izgara);
    p.EndDoc();
    return cikti.belgeler.value(0);
}

// The cells of a page, in printing order: all but the title.
QList<SayfaYazisi> HucreYazilari(const Sayfa& sayfa)
{
    QList<SayfaYazisi> hucreler = sayfa.yazilar;
    hucreler.removeIf([](const SayfaYazisi& yazi) {
        return yazi.x == 10 * MmTwip && yazi.y == 5 * MmTwip;
    });
    return hucreler;
}

QStringList Hucreler(const Sayfa& sayfa)
{
    QStringList metinler;
    for (const SayfaYazisi& yazi : HucreYazilari(sayfa))
        metinler.append(yazi.metin);
    return metinler;
}

}

class TstGridYazdir : public QObject
{
    Q_OBJECT

private slots:
    // At millimetres, fractions kept; without a printer it leaves quietly.
    void konumYaz()
    {
        BellekCikti cikti;
        Yazici p(&cikti);
        QVERIFY(KonumYaz(p, 12.5, 200, u"Ağaç"_s));
        p.EndDoc();
        QCOMPARE(cikti.belgeler.first().first().MetinNerede(706.25, 11300), u"Ağaç"_s);
        Yazici yazicisiz;
        QVERIFY(!KonumYaz(yazicisiz, 10, 5, u"x"_s));
    }

    // Lines per page, the heading included; rows may neither be lost nor repeat.
    void sayfalar_data()
    {
        QTest::addColumn<int>("veriSatiri");
        QTest::addColumn<QList<int>>("satirlar");
        QTest::newRow("tek sayfa") << 10 << QList<int>{11};
        QTest::newRow("sayfa dolu, ikincide yalniz baslik") << 52 << QList<int>{53, 1};
        QTest::newRow("bir satir tasar") << 53 << QList<int>{53, 2};
        QTest::newRow("uc sayfa") << 120 << QList<int>{53, 53, 17};
    }

    void sayfalar()
    {
        QFETCH(int, veriSatiri);
        QFETCH(QList<int>, satirlar);

        for (bool genis : {false, true}) {
            const Belge belge = Yazdir(OrnekIzgara(veriSatiri), genis);
            QCOMPARE(belge.size(), satirlar.size());
            QStringList kodlar;
            for (qsizetype s = 0; s < belge.size(); ++s) {
                std::set<double> satirYerleri;
                for (const SayfaYazisi& yazi : HucreYazilari(belge[s]))
                    satirYerleri.insert(yazi.y);
                QCOMPARE(int(satirYerleri.size()), satirlar[s]);
                const QStringList hucreler = Hucreler(belge[s]);
                QCOMPARE(hucreler.first(), u"Kod"_s);
                for (qsizetype i = 3; i < hucreler.size(); i += 3)
                    kodlar.append(hucreler[i]);
            }
            QStringList beklenen;
            for (int i = 1; i <= veriSatiri; ++i)
                beklenen.append(u"K%1"_s.arg(i));
            QCOMPARE(kodlar, beklenen);
        }
    }

    void yerlesim_data()
    {
        QTest::addColumn<bool>("genis");
        QTest::addColumn<QString>("baslik");
        QTest::addColumn<double>("baslikPuntosu");
        QTest::addColumn<double>("punto");
        QTest::newRow("GridYazdir") << false << u"Kurum - 01.02.2024"_s << 10.0 << 9.0;
        QTest::newRow("GridYazdirGenis") << true << u"  "_s << 8.5 << 8.5;
    }

    void yerlesim()
    {
        QFETCH(bool, genis);
        QFETCH(double, punto);

        const Belge belge = Yazdir(OrnekIzgara(60), genis);
        QCOMPARE(belge.size(), 2);
        const double mm = MmTwip;

        const SayfaYazisi* ust = belge[0].YaziNerede(10 * mm, 5 * mm);
        QVERIFY(ust);
        QTEST(ust->metin, "baslik");
        QTEST(ust->punto, "baslikPuntosu");

        // Page one starts 15 mm down, the others 5 mm; the heading is bold.
        struct Beklenen { int sayfa; double x, y; QString metin; bool kalin; };
        const QList<Beklenen> hucreler{
            {0, 5 * mm, 15 * mm, u"Kod"_s, true},
            {0, 5 * mm + 1000, 15 * mm, u"Ad"_s, true},
            {0, 5 * mm, 20 * mm, u"K1"_s, false},
            {0, 5 * mm, (52 * 5 + 15) * mm, u"K52"_s, false},
            {1, 5 * mm, 5 * mm, u"Kod"_s, true},
            {1, 5 * mm, 10 * mm, u"K53"_s, false},
            {1, 5 * mm + 3000, (8 * 5 + 5) * mm, u"60"_s, false},
        };
        for (const Beklenen& b : hucreler) {
            const SayfaYazisi* yazi = belge[b.sayfa].YaziNerede(b.x, b.y);
            QVERIFY2(yazi, qPrintable(b.metin));
            QCOMPARE(yazi->metin, b.metin);
            QCOMPARE(yazi->kalin, b.kalin);
            QCOMPARE(yazi->punto, punto);
        }
        QVERIFY(!belge[1].YaziNerede(10 * mm, 5 * mm));
    }

    void gizliSutun_data()
    {
        QTest::addColumn<QList<int>>("genislikler");
        QTest::addColumn<QStringList>("basliklar");
        QTest::addColumn<QList<double>>("konumlar");
        const double sol = 5 * MmTwip;
        QTest::newRow("ortada gizli") << QList<int>{1000, 100, 2000} << QStringList{u"Kod"_s, u"Miktar"_s}
                                      << QList<double>{sol, sol + 1000};
        QTest::newRow("101 gorunur") << QList<int>{1000, 101, 2000}
                                     << QStringList{u"Kod"_s, u"Ad"_s, u"Miktar"_s}
                                     << QList<double>{sol, sol + 1000, sol + 1101};
        QTest::newRow("ilk sutun gizli") << QList<int>{0, 1500, 800} << QStringList{u"Ad"_s, u"Miktar"_s}
                                         << QList<double>{sol, sol + 1500};
    }

    void gizliSutun()
    {
        QFETCH(QList<int>, genislikler);
        QFETCH(QStringList, basliklar);
        QFETCH(QList<double>, konumlar);

        const Sayfa sayfa = Yazdir(OrnekIzgara(1, genislikler), false).first();
        QCOMPARE(Hucreler(sayfa).mid(0, basliklar.size()), basliklar);
        for (qsizetype i = 0; i < basliklar.size(); ++i)
            QCOMPARE(sayfa.MetinNerede(konumlar[i], 15 * MmTwip), basliklar[i]);
    }

    // The row with the empty test cell still prints its other cells.
    void ilkBosSatir_data()
    {
        QTest::addColumn<bool>("genis");
        QTest::addColumn<QStringList>("hucreler");
        const QStringList baslik{u"Kod"_s, u"Ad"_s};
        QTest::newRow("ilk sutun bos") << false << baslik + QStringList{u"K1"_s, u"Ad 1"_s, u"yarım"_s};
        QTest::newRow("genis: ikinci sutun bosa kadar")
            << true << baslik + QStringList{u"K1"_s, u"Ad 1"_s, u"yarım"_s, u"K3"_s};
    }

    void ilkBosSatir()
    {
        QFETCH(bool, genis);
        const Izgara izgara({{u"Kod"_s, u"Ad"_s},
                             {u"K1"_s, u"Ad 1"_s},
                             {u""_s, u"yarım"_s},
                             {u"K3"_s, u""_s},
                             {u"K4"_s, u"Ad 4"_s}},
                            {1000, 2000});
        QTEST(Hucreler(Yazdir(izgara, genis).first()), "hucreler");
    }

    void hata()
    {
        Yazici yazicisiz;
        QCOMPARE(HataMetni<YaziciHatasi>([&] { GridYazdir(yazicisiz, u"Kurum"_s, OrnekIzgara(3)); }),
                 u"Belge yazdırılamıyor.."_s);
        QCOMPARE(HataMetni<YaziciHatasi>([&] { GridYazdirGenis(yazicisiz, OrnekIzgara(3)); }),
                 u"Belge yazdırılamıyor.."_s);
    }

    void modeldenIzgara()
    {
        auto model = std::make_unique<QStandardItemModel>(2, 3);
        model->setHorizontalHeaderLabels({u"Kod"_s, u"Ad"_s, u"Miktar"_s});
        model->setItem(0, 0, new QStandardItem(u"K1"_s));
        model->setItem(1, 2, new QStandardItem(u"12,5"_s));

        const Izgara izgara = ModeldenIzgara(*model, {1000, 50, 1500, 700});
        QCOMPARE(izgara.Rows(), 3);
        QCOMPARE(izgara.Cols(), 4);
        const auto hucre = [&izgara](int r, int c) { return izgara.TextMatrix(r, c); };
        QCOMPARE((QStringList{hucre(0, 1), hucre(1, 0), hucre(2, 2), hucre(1, 3), hucre(3, 0)}),
                 (QStringList{u"Ad"_s, u"K1"_s, u"12,5"_s, u""_s, u""_s}));
        QCOMPARE(izgara.ColWidth(1), 50);
        // Cells are read from the model when asked, not copied.
        model->setItem(0, 0, new QStandardItem(u"K2"_s));
        QCOMPARE(izgara.TextMatrix(1, 0), u"K2"_s);
        model.reset();
        QCOMPARE(izgara.TextMatrix(1, 0), u""_s);
    }
};

QTEST_MAIN(TstGridYazdir)
#include "tst_grid_yazdir.moc"
