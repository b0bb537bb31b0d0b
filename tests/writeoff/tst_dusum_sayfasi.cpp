#include "gecici_veri.h"
#include "bicim.h"
#include "cikti.h"
#include "dusum_sayfasi.h"
#include "dusum_yaz.h"
#include "etkinlestir.h"
#include "fis_yazimi.h"
#include "form_cizimi.h"
#include "kayit.h"
#include "sabit_kayit.h"
#include "veri.h"

#include <QFontMetricsF>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Wider than any field the minutes print.
const QString genis = u"Ş"_s + QString(49, u'W');

// Every field its own name, or `deger`.
SabitSatiri sabit(const QString& deger = {})
{
    SabitSatiri s;
    for (const char* alan : {"ilAdi", "ilKod", "KurumAdi", "KurumKod", "MuhasebeBirimiAdi", "MuhasebeBirimiKod",
                             "AyniyatMemuru2", "AyniyatMemuru1", "HarcamaYetkilisi2", "HarcamaYetkilisi1",
                             "UstYonetici2", "UstYonetici1"})
        s[QString::fromLatin1(alan)] = deger.isEmpty() ? QString::fromLatin1(alan) : deger;
    return s;
}

QStringList satir(const QString& kod, const QString& metin, const QString& miktar, const QString& fiyat)
{
    QStringList s(DusumSutun::Sayi);
    s[DusumSutun::HesapKod] = kod, s[DusumSutun::SicilNo] = metin, s[DusumSutun::Ozellik] = metin;
    s[DusumSutun::Birimi] = metin, s[DusumSutun::Miktar] = miktar, s[DusumSutun::BirimFiyat] = fiyat;
    s[DusumSutun::KDV] = u"20"_s;
    return s;
}

DusumYazimi yazim(const QList<QStringList>& satirlar, const QString& metin = u"Mustafa Çelik"_s)
{
    DusumYazimi y;
    y.d.FisNo = u"12"_s, y.d.Tarih = u"28.12.2026"_s, y.d.Satirlar = satirlar;
    y.d.KomisyonBaskaniAdi = y.d.KomisyonBaskaniUnvani = y.d.UyeAdi = y.d.UyeUnvani = metin;
    y.Text2 = DusumKayit::AraToplam(y.d).Text2;
    y.KDVTOP = SayiMetni(DusumKayit::KdvToplam(y.d));
    return y;
}

// `sayi` rows, every field at the longest the record keeps, in wide letters.
DusumYazimi dolu(int sayi)
{
    return yazim(QList<QStringList>(sayi, satir(u"255 01"_s, genis, u"99999999999999"_s, u"99999999999999999.99"_s)),
                 genis);
}

double satirY(int i)
{
    return 2840 + (i - 1) * FormCizimi::SatirAdimi;
}

// The text put at (x, y) in `punto`, set smaller or not: its baseline stays.
const SayfaYazisi* yerinde(const Sayfa& s, double x, double y, double punto)
{
    const double taban = y + QFontMetricsF(YaziFontu(punto, false)).ascent();
    for (const SayfaYazisi& yazi : s.yazilar)
        if (yazi.x == x && qAbs(yazi.y + QFontMetricsF(YaziFontu(yazi.punto, false)).ascent() - taban) < 0.5)
            return &yazi;
    return nullptr;
}

QStringList yazilari(const Sayfa& s)
{
    QStringList sonuc;
    for (const SayfaYazisi& y : s.yazilar)
        sonuc << u"%1,%2 %3 %4"_s.arg(y.x).arg(y.y).arg(y.punto).arg(y.metin);
    return sonuc;
}

}

class TstDusumSayfasi : public QObject, protected GeciciVeri
{
    Q_OBJECT

private slots:
    void init() { Yenile(); }

    // Each value at its place and size, the tax lines on the two lines after
    // the last row; a row without a code keeps its line empty and takes no
    // number.
    void yerler()
    {
        const QString uzun = u"Sandalye Ahşap Kolçaklı Döner Ayaklı"_s;
        const DusumYazimi y = yazim({satir(u"255 01"_s, u"Masa"_s, u"2"_s, u"1500.5"_s),
                                     satir(QString(), u"Dolap"_s, u"1"_s, u"1"_s),
                                     satir(u"255 02"_s, uzun, u"3"_s, u"4"_s)});
        Sayfa s = DusumSayfasi(y, sabit());
        DusumKdvYaz(s, y);
        const DusumEkrani& d = y.d;
        QVariant miktar = 3.0, fiyat = 4.0, tutar = 12.0, noktali = 1500.5;
        const QList<std::tuple<double, double, double, QString>> yerler = {
            {2500, 720, 9, u"ilAdi"_s}, {8400, 720, 9, u"ilKod"_s}, {2500, 1070, 9, u"KurumAdi"_s},
            {8400, 1070, 9, u"KurumKod"_s}, {2500, 1420, 9, u"MuhasebeBirimiAdi"_s},
            {8400, 1420, 9, u"MuhasebeBirimiKod"_s}, {9200, 100, 11, d.Tarih}, {9400, 360, 14, d.FisNo},
            {80, satirY(1), 9, u"1"_s}, {7300, satirY(1), 9, Miktar4Yaz(noktali, 9)}, {80, satirY(3), 9, u"2"_s},
            {360, satirY(3), 9, uzun.left(17)}, {2200, satirY(3), 9, uzun.left(30)}, {5400, satirY(3), 9, uzun.left(7)},
            {6000, satirY(3), 9, Tutar2Yaz(miktar, 9)}, {7300, satirY(3), 9, Miktar4Yaz(fiyat, 9)},
            {8360, satirY(3), 9, Miktar4Yaz(tutar, 15)}, {8360, satirY(4), 9, FisYazimiKurali::KdvSatiri(y.KDVTOP)},
            {8360, satirY(5), 9, FisYazimiKurali::GenelToplamSatiri(DusumKayit::AraToplam(d).Text3, y.KDVTOP)},
            {6950, 7900, 10, y.Text2}, {750, 8400, 10, u"X"_s}, {1100, 11400, 9, d.Tarih},
            {7450, 11700, 9, u"AyniyatMemuru2"_s}, {7450, 11910, 9, u"AyniyatMemuru1"_s},
            {4650, 13210, 9, u"AyniyatMemuru2"_s}, {4650, 13420, 9, u"AyniyatMemuru1"_s}, {700, 13740, 9, d.Tarih},
            {8650, 13740, 9, d.Tarih}, {660, 12810, 9, d.KomisyonBaskaniAdi}, {660, 13020, 9, d.KomisyonBaskaniUnvani},
            {7700, 12950, 9, d.UyeAdi}, {7700, 13160, 9, d.UyeUnvani}, {2500, 14370, 9, u"HarcamaYetkilisi2"_s},
            {2500, 14580, 9, u"HarcamaYetkilisi1"_s}};
        for (const auto& [x, yy, punto, metin] : yerler) {
            const SayfaYazisi* yazi = yerinde(s, x, yy, punto);
            QVERIFY2(yazi && yazi->metin == metin, qPrintable(u"%1,%2: %3"_s.arg(x).arg(yy).arg(metin)));
        }
        QVERIFY(!s.YaziNerede(80, satirY(2)));
        // The senior manager's title would leave the form at 14880: the two
        // lines go up by less than a row.
        const auto ad = std::ranges::find(s.yazilar, u"UstYonetici2"_s, &SayfaYazisi::metin);
        QVERIFY(ad->x == 7500 && ad->y < 14670 && ad->y > 14670 - FormCizimi::SatirAdimi);
        QCOMPARE(s.MetinNerede(7500, ad->y + 210), u"UstYonetici1"_s);
    }

    // With the longest values nothing leaves its box or runs into another.
    // The quantity total and the mark follow the rows below the form's 21,
    // the tax lines the last row, drawn once however often asked; a 26th row
    // is not printed.
    void sinirlar_data()
    {
        QTest::addColumn<int>("sayi");
        QTest::newRow("none") << 0;
        QTest::newRow("21 rows") << 21;
        QTest::newRow("22 rows") << 22;
        QTest::newRow("25 rows") << 25;
        QTest::newRow("26 rows") << 26;
    }
    void sinirlar()
    {
        QFETCH(int, sayi);
        const DusumYazimi y = dolu(sayi);
        Sayfa s = DusumSayfasi(y, sabit(genis));
        DusumKdvYaz(s, y);
        const QStringList once = yazilari(s);
        DusumKdvYaz(s, y);
        QCOMPARE(yazilari(s), once);
        QVERIFY(FormCizimi::YerindeOlmayanlar(s).isEmpty());
        QVERIFY(FormCizimi::Cakisanlar(s).isEmpty());

        const int basilan = qMin(sayi, FormCizimi::SatirSayisi);
        const double kayma = qMax(0, basilan - 21) * FormCizimi::SatirAdimi;
        QCOMPARE(s.MetinNerede(80, satirY(basilan)), basilan ? QString::number(basilan) : QString());
        QCOMPARE(std::count_if(s.yazilar.begin(), s.yazilar.end(), [](const SayfaYazisi& t) { return t.x == 80; }),
                 basilan);
        QVERIFY(yerinde(s, 6950, 7900 + kayma, 10));
        QCOMPARE(s.MetinNerede(750, 8400 + kayma), u"X"_s);
        QVERIFY(yerinde(s, 8360, satirY(basilan + 1), 9) && yerinde(s, 8360, satirY(basilan + 2), 9));
    }

    void ekran()
    {
        const DusumYazimi y = yazim({satir(u"255 01"_s, u"Masa"_s, u"2"_s, u"1500"_s)});
        SabitKayit::Kaydet(veri().Genel(), sabit());
        BellekCikti cikti;
        QPointer<DusumYaz> e = new DusumYaz({u"2026"_s, u"12"_s, u"Okul"_s, &veri()}, y);
        e->CiktiSec(&cikti);
        e->show();
        Etkinlestir(e);
        QCOMPARE(e->windowTitle(), u"Hasarlı Dusum Yaz"_s);
        QCOMPARE((QStringList{e->CmdYaz->text(), e->CmdKDV->text(), e->c8->text()}),
                 (QStringList{u"F2  Yaz"_s, u"F3 KDV Yaz"_s, u"Esc_Çıkış"_s}));
        QVERIFY(!e->findChild<QPushButton*>(u"Command2"_s));
        Sayfa beklenen = DusumSayfasi(y, sabit());
        QCOMPARE(yazilari(e->Goruntu()), yazilari(beklenen));

        QTest::keyClick(e, Qt::Key_F3);
        DusumKdvYaz(beklenen, y);
        QCOMPARE(yazilari(e->Goruntu()), yazilari(beklenen));
        QTest::keyClick(e, Qt::Key_F2);
        QCOMPARE(cikti.belgeler.size(), 1);
        QCOMPARE(cikti.belgeler[0].size(), 1);
        QCOMPARE(yazilari(cikti.belgeler[0][0]), yazilari(beklenen));

        QTest::keyClick(e, Qt::Key_Escape);
        QVERIFY(!e->isVisible());
        delete e;
    }
};

QTEST_MAIN(TstDusumSayfasi)
#include "tst_dusum_sayfasi.moc"
