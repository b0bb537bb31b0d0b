#include "gecici_veri.h"
#include "cikti.h"
#include "grid_yazdir.h"
#include "izgara.h"
#include "liste_izgarasi.h"
#include "satir_deposu.h"
#include "veritabani.h"
#include "yazici.h"
#include "veri.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int blok = ListeIzgarasi::Blok;
const QString listeSql = u"select FisNo, Ozellik from FIS where FisNo > ? order by FisNo"_s;

// Each page as its cells, "x y bold text", in printing order.
QList<QStringList> Sayfalar(const Izgara& izgara)
{
    BellekCikti cikti;
    Yazici p(&cikti);
    GridYazdir(p, u"Liste"_s, izgara);
    p.EndDoc();
    QList<QStringList> sayfalar;
    for (const Sayfa& sayfa : cikti.belgeler.value(0)) {
        QStringList hucreler;
        for (const SayfaYazisi& yazi : sayfa.yazilar)
            hucreler << u"%1 %2 %3 %4"_s.arg(yazi.x).arg(yazi.y).arg(yazi.kalin).arg(yazi.metin);
        sayfalar << hucreler;
    }
    return sayfalar;
}

}

class TstListeIzgarasi : public QObject, protected GeciciVeri
{
    Q_OBJECT

    // Vouchers 1..n, each with the description Ö<no>.
    void yaz(int n)
    {
        Veritabani& vt = veri().Ayniyat();
        Islem islem(vt);
        for (int i = 1; i <= n; ++i)
            vt.Hazir(u"insert into FIS (FisNo, Ozellik) values (?, ?)"_s).Calistir({i, u"Ö%1"_s.arg(i)});
        islem.Onayla();
    }

    void doldur(ListeIzgarasi& liste)
    {
        liste.Genislikler({1000, 1000});
        liste.resize(400, 300);
        liste.show();
        liste.Doldur(veri().Ayniyat(), listeSql, {0});
    }

private slots:
    void init() { Yenile(); }

    void deposu()
    {
        constexpr int pencere = 3;
        SatirDeposu depo(blok, pencere);
        QCOMPARE(depo.Bellekte(), 0);
        for (int i = 0; i < 3000; ++i)
            depo.Ekle({QString::number(i), u"Ö%1"_s.arg(i)});
        QCOMPARE(depo.Boy(), 3000);
        QVERIFY(depo.Bellekte() <= pencere * blok);

        // A cell past the row's end widens it, and stays while its block is
        // pushed out and brought back.
        depo.Yaz(blok, 3, u"SINIF"_s);
        for (int satir : {0, blok - 1, blok, blok + 1, 1500, 2999, 0, 2 * blok - 1}) {
            QCOMPARE(depo.Satir(satir).value(1), u"Ö%1"_s.arg(satir));
            QVERIFY(depo.Bellekte() <= pencere * blok);
        }
        QCOMPARE(depo.Satir(blok), (QStringList{QString::number(blok), u"Ö%1"_s.arg(blok), {}, u"SINIF"_s}));
        QCOMPARE(depo.Satir(blok + 1).size(), 2);

        depo.Temizle();
        QCOMPARE(depo.Boy(), 0);
        depo.Ekle({u"yeni"_s});
        QCOMPARE(depo.Satir(0), QStringList{u"yeni"_s});
    }

    void arkadaOkuma()
    {
        yaz(3000);
        ListeIzgarasi liste(nullptr, 2);
        doldur(liste);
        // The first screen only; the count is exact all the same.
        QCOMPARE(liste.Okunan(), blok);
        QCOMPARE(liste.Rows(), 3001);
        QTRY_COMPARE(liste.Okunan(), 3000);
        QCOMPARE(liste.Rows(), 3001);

        // Read to the end: no statement keeps the file, so each write goes
        // into the .MDB itself at once and the -wal stays small. A copy of
        // the .MDB alone holds the last write.
        Veritabani& vt = veri().Ayniyat();
        for (int i = 0; i < 200; ++i) {
            Islem islem(vt);
            vt.Calistir(u"delete from FIS where FisNo = ?"_s, {3000 - i});
            islem.Onayla();
        }
        QVERIFY(QFileInfo(vt.Yol() + u"-wal"_s).size() <= 4 * 1024 * 1024);
        const QString kopya = QDir(klasor()).filePath(u"kopya.mdb"_s);
        QVERIFY(QFile::copy(vt.Yol(), kopya));
        QCOMPARE(Veritabani(kopya).Satirlar(u"select count(*) from FIS"_s), (QList<QStringList>{{u"2800"_s}}));
        QCOMPARE(liste.Rows(), 3001);

        liste.HucreYaz(blok + 1, 1, u"SINIF"_s);
        liste.verticalScrollBar()->setValue(liste.verticalScrollBar()->maximum());
        QCoreApplication::processEvents();
        QCOMPARE(liste.TextMatrix(3000, 1), u"Ö3000"_s);
        liste.SatirSec(1500);
        QCOMPARE(liste.Row(), 1500);
        liste.verticalScrollBar()->setValue(0);
        QCoreApplication::processEvents();
        for (int satir : {1, blok, 2 * blok + 1, 3000})
            QCOMPARE(liste.TextMatrix(satir, 1), u"Ö%1"_s.arg(satir));
        QCOMPARE(liste.TextMatrix(blok + 1, 1), u"SINIF"_s);
    }

    void sinirlar_data()
    {
        QTest::addColumn<int>("satir");
        QTest::newRow("boş") << 0;
        QTest::newRow("tek satır") << 1;
        QTest::newRow("tam bir blok") << blok;
        QTest::newRow("bir blok ve bir satır") << blok + 1;
    }

    void sinirlar()
    {
        QFETCH(int, satir);
        yaz(satir);
        ListeIzgarasi liste(nullptr, 1);
        doldur(liste);
        QCOMPARE(liste.Rows(), satir + 1);
        QTRY_COMPARE(liste.Okunan(), satir);
        QCOMPARE(liste.TextMatrix(satir, 1), satir ? u"Ö%1"_s.arg(satir) : u""_s);
        QCOMPARE(liste.TextMatrix(satir + 1, 0), QString());
        liste.SatirEkle({u"son"_s});
        QCOMPARE(liste.Rows(), satir + 2);
        QCOMPARE(liste.TextMatrix(satir + 1, 0), u"son"_s);
    }

    void anlikSayfalar()
    {
        yaz(600);
        ListeIzgarasi liste(nullptr, 1);
        doldur(liste);
        liste.Basliklar({u"FişNo"_s, u"Özellik"_s});
        // Printed before the background is done: the rest is read first.
        const Izgara anlik = liste.Anlik();
        QCOMPARE(anlik.Rows(), 601);

        const QList<QStringList> satirlar =
            QList<QStringList>{{u"FişNo"_s, u"Özellik"_s}} + veri().Ayniyat().Satirlar(listeSql, {0});
        const QList<QStringList> beklenen = Sayfalar(Izgara(satirlar, {1000, 1000}));
        QCOMPARE(beklenen.size(), 12);
        QCOMPARE(Sayfalar(anlik), beklenen);
    }
};

QTEST_MAIN(TstListeIzgarasi)
#include "tst_liste_izgarasi.moc"
