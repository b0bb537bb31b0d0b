#include "cikti.h"
#include "grid_yazdir.h"
#include "hata_metni.h"
#include "izgara.h"
#include "yazici.h"

#include <QStandardItemModel>
#include <QtTest>

#include <memory>

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

    // Lines per page, the heading included, 5 mm apart from 15 mm down on the
    // first page and from 5 mm on the others; the heading bold at the top of
    // every page, the title on the first only; no row lost or repeated.
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
        const double mm = MmTwip;
        for (bool genis : {false, true}) {
            const Belge belge = Yazdir(OrnekIzgara(veriSatiri), genis);
            QCOMPARE(belge.size(), satirlar.size());
            const SayfaYazisi* baslik = belge[0].YaziNerede(10 * mm, 5 * mm);
            QVERIFY(baslik);
            QCOMPARE(u"%1|%2"_s.arg(baslik->metin).arg(baslik->punto),
                     genis ? u"  |8.5"_s : u"Kurum - 01.02.2024|10"_s);
            QStringList kodlar;
            for (qsizetype s = 0; s < belge.size(); ++s) {
                const QList<SayfaYazisi> hucreler = HucreYazilari(belge[s]);
                QCOMPARE(belge[s].yazilar.size() - hucreler.size(), s == 0 ? 1 : 0);
                QCOMPARE(hucreler.size(), 3 * satirlar[s]);
                for (qsizetype i = 0; i < hucreler.size(); ++i) {
                    const SayfaYazisi& h = hucreler[i];
                    const qsizetype satir = i / 3;
                    QCOMPARE(QPointF(h.x, h.y), QPointF(5 * mm + QList<int>{0, 1000, 3000}[i % 3],
                                                        ((s == 0 ? 15 : 5) + 5 * satir) * mm));
                    QCOMPARE(h.kalin, satir == 0);
                    QCOMPARE(h.punto, genis ? 8.5 : 9.0);
                    if (satir == 0)
                        QCOMPARE(h.metin, (QStringList{u"Kod"_s, u"Ad"_s, u"Miktar"_s}[i % 3]));
                    else if (i % 3 == 0)
                        kodlar.append(h.metin);
                }
            }
            QStringList beklenen;
            for (int i = 1; i <= veriSatiri; ++i)
                beklenen.append(u"K%1"_s.arg(i));
            QCOMPARE(kodlar, beklenen);
        }
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
