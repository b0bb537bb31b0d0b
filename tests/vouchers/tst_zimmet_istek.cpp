#include "form_cizimi.h"
#include "istek_sayfasi.h"
#include "istek_yaz.h"
#include "kayit.h"
#include "modal_yanit.h"
#include "sabit_kayit.h"
#include "veri.h"
#include "zimmet_sayfasi.h"
#include "zimmet_yaz.h"

#include <QFontMetricsF>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using SayfaYapici = Sayfa (*)(const FisYazimi&, const SabitSatiri&);

namespace {

const SabitSatiri sabit = {{u"ilAdi"_s, u"Ankara / Çankaya"_s},
                           {u"ilKod"_s, u"06.01"_s},
                           {u"KurumAdi"_s, u"Atatürk Anadolu Lisesi Müdürlüğü"_s},
                           {u"KurumKod"_s, u"06.01.12.34"_s},
                           {u"AyniyatMemuru2"_s, u"Ayşe Yılmaz"_s},
                           {u"AyniyatMemuru1"_s, u"Taşınır Kayıt Yetkilisi"_s}};

// A line: code, name, unit, incoming and outgoing quantity, recipient.
QStringList satir(const QString& kod, const QString& ad, const QString& miktar, const QString& cikan,
                  const QString& birim = u"ADET"_s, const QString& kime = QString())
{
    QStringList s(FisSutun::Sayi);
    using namespace FisSutun;
    s[HesapKod] = kod, s[Ozellik] = ad, s[Birimi] = birim, s[Miktar] = miktar, s[BirimFiyat] = u"10"_s;
    s[Cikan] = cikan, s[KimeVerildigi] = kime;
    return s;
}

FisYazimi yazim(const QString& cins, const QList<QStringList>& satirlar)
{
    FisYazimi y;
    y.fis.FisNo = u"7"_s, y.fis.Tarih = u"10.03.2026"_s, y.fis.FCins = y.fis.Hangi = cins;
    y.fis.TeslimAlan = u"Abdurrahman Şerefeddin Karagözoğlu"_s, y.fis.Satirlar = satirlar;
    y.UniteAd2 = u"Bilgi İşlem"_s, y.Text2 = u"12,5"_s;
    return y;
}

// Wider than any field a slip prints.
const QString genis = u"Ş"_s + QString(49, u'W');

// Every line the form holds, each field at the longest the record keeps, in
// wide letters; odd lines have the longest register number.
FisYazimi dolu()
{
    QList<QStringList> satirlar;
    for (int i = 1; i <= 25; ++i)
        satirlar.append(satir(i % 2 ? u"25501020010203040506"_s : genis.left(20), genis.left(30),
                              u"99999999999999"_s, u"99999999999999"_s, i % 2 ? u"KİLOGRAM"_s : genis.left(7),
                              genis.left(30)));
    FisYazimi y = yazim(u"G"_s, satirlar);
    y.fis.TeslimAlan = genis, y.UniteAd2 = genis.left(30), y.Text2 = u"99999999999999"_s;
    return y;
}

// The texts of the lines' band, top to bottom and left to right.
QStringList bant(const Sayfa& s, double ust, double alt)
{
    QList<SayfaYazisi> yazilar = s.yazilar;
    yazilar.removeIf([&](const SayfaYazisi& y) { return y.y < ust || y.y >= alt; });
    std::sort(yazilar.begin(), yazilar.end(),
              [](const SayfaYazisi& a, const SayfaYazisi& b) { return std::pair(a.y, a.x) < std::pair(b.y, b.x); });
    QStringList sonuc;
    for (const SayfaYazisi& y : yazilar)
        sonuc.append(u"%1,%2 %3"_s.arg(y.x).arg(y.y).arg(y.metin));
    return sonuc;
}

// What the rules and the edges of the boxes cover on paper.
QList<QRectF> kalemAlanlari(const Zemin& z)
{
    QList<QRectF> alanlar;
    const auto ekle = [&](QPointF a, QPointF b, double k) {
        alanlar.append(QRectF(a, b).normalized().adjusted(-k / 2, -k / 2, k / 2, k / 2));
    };
    for (const Cizgi& c : z.cizgiler)
        ekle(c.konum.p1(), c.konum.p2(), c.kalinlik);
    for (const Kutu& k : z.kutular) {
        const QRectF& a = k.alan;
        ekle(a.topLeft(), a.topRight(), k.kalinlik);
        ekle(a.topRight(), a.bottomRight(), k.kalinlik);
        ekle(a.bottomLeft(), a.bottomRight(), k.kalinlik);
        ekle(a.topLeft(), a.bottomLeft(), k.kalinlik);
    }
    return alanlar;
}

}

class TstZimmetIstek : public QObject
{
    Q_OBJECT

private slots:
    void yerler_data()
    {
        QTest::addColumn<SayfaYapici>("yapici");
        QTest::addColumn<QPointF>("yer");
        QTest::addColumn<QString>("beklenen");
        QTest::addColumn<double>("punto");
        const SayfaYapici z = ZimmetSayfasi, i = IstekSayfasi;
        QTest::newRow("z ilAdi") << z << QPointF(2100, 940) << u"Ankara / Çankaya"_s << 10.;
        QTest::newRow("z ilKod") << z << QPointF(6500, 940) << u"06.01"_s << 10.;
        QTest::newRow("z KurumAdi") << z << QPointF(2100, 1180) << u"Atatürk Anadolu Lisesi Müdürlüğü"_s << 10.;
        QTest::newRow("z KurumKod") << z << QPointF(6500, 1180) << u"06.01.12.34"_s << 10.;
        QTest::newRow("z recipient of row 1") << z << QPointF(2100, 1490) << u"Ali Veli"_s << 10.;
        QTest::newRow("z unit") << z << QPointF(2100, 1770) << u"Bilgi İşlem"_s << 10.;
        QTest::newRow("z date") << z << QPointF(6900, 9800) << u"10.03.2026"_s << 10.;
        QTest::newRow("z giver") << z << QPointF(800, 10750) << u"Ayşe Yılmaz"_s << 10.;
        QTest::newRow("z giver's title") << z << QPointF(800, 11000) << u"Taşınır Kayıt Yetkilisi"_s << 10.;
        QTest::newRow("z receiver, 24") << z << QPointF(6250, 11000) << u"Abdurrahman Şerefeddin K"_s << 10.;
        QTest::newRow("z receiver's date") << z << QPointF(7100, 11400) << u"10.03.2026"_s << 9.;
        QTest::newRow("z officer") << z << QPointF(4800, 12020) << u"Ayşe Yılmaz"_s << 9.;
        QTest::newRow("z officer's title") << z << QPointF(4800, 12240) << u"Taşınır Kayıt Yetkilisi"_s << 9.;
        QTest::newRow("z mark and number") << z << QPointF(1100, 600) << u"Ç-7"_s << 14.;
        QTest::newRow("z head date") << z << QPointF(6900, 600) << u"10.03.2026"_s << 11.;
        QTest::newRow("i receiver, 26") << i << QPointF(1050, 13212) << u"Abdurrahman Şerefeddin Kar"_s << 9.;
        QTest::newRow("i receiver's date") << i << QPointF(1050, 13848) << u"10.03.2026"_s << 9.;
        QTest::newRow("i officer") << i << QPointF(7450, 13212) << u"Ayşe Yılmaz"_s << 9.;
        QTest::newRow("i officer's title") << i << QPointF(7450, 13848) << u"Taşınır Kayıt Yetkilisi"_s << 9.;
        QTest::newRow("i mark and number") << i << QPointF(8700, 280) << u"Ç-7"_s << 14.;
        QTest::newRow("i head date") << i << QPointF(8700, 670) << u"10.03.2026"_s << 12.;
        QTest::newRow("i unit") << i << QPointF(1650, 650) << u"Bilgi İşlem"_s << 12.;
        QTest::newRow("i quantity total") << i << QPointF(7950, 11310) << QString(12, u' ') + u"12,5"_s << 10.;
    }
    void yerler()
    {
        QFETCH(SayfaYapici, yapici);
        QFETCH(QPointF, yer);
        const Sayfa s = yapici(
            yazim(u"C"_s, {satir(u"255 01 01 001"_s, u"Masa"_s, u""_s, u"1"_s, u"ADET"_s, u"Ali Veli"_s)}), sabit);
        const SayfaYazisi* yazi = s.YaziNerede(yer.x(), yer.y());
        QVERIFY(yazi);
        QTEST(yazi->metin, "beklenen");
        QTEST(yazi->punto, "punto");
    }

    // The custody slip reads the kind, the request slip Hangi; the request
    // slip leaves out a unit name in capitals, an empty one prints nowhere.
    void isaretVeBirim_data()
    {
        QTest::addColumn<QString>("cins");
        QTest::addColumn<QString>("cikan");
        QTest::addColumn<QString>("unite");
        QTest::addColumn<QString>("isaret");
        QTest::addColumn<QString>("zimmette");
        QTest::addColumn<QString>("istekte");
        const QString bos(13, u' ');
        QTest::newRow("entry, Depo") << u"G"_s << u""_s << u"Depo"_s << u"G-7"_s << u"Depo"_s << bos;
        QTest::newRow("entry handing out, DEPO") << u"G"_s << u"1"_s << u"DEPO"_s << u"GÇ-7"_s << u"DEPO"_s << bos;
        QTest::newRow("issue, depo") << u"C"_s << u"1"_s << u"depo"_s << u"Ç-7"_s << u"depo"_s << u"depo"_s;
        QTest::newRow("issue, no unit") << u"C"_s << u"1"_s << u"false"_s << u"Ç-7"_s << QString() << QString();
    }
    void isaretVeBirim()
    {
        QFETCH(QString, cins);
        QFETCH(QString, cikan);
        QFETCH(QString, unite);
        QFETCH(QString, isaret);
        FisYazimi f =
            yazim(cins, {satir(u"255"_s, u"Masa"_s, u"1"_s, u""_s), satir(u"150"_s, u"Kağıt"_s, u"1"_s, cikan)});
        f.UniteAd2 = unite;
        const Sayfa zimmet = ZimmetSayfasi(f, sabit);
        QCOMPARE(zimmet.MetinNerede(1100, 600), isaret);
        QTEST(zimmet.MetinNerede(2100, 1770), "zimmette");
        f.fis.FCins = u"X"_s;
        const Sayfa istek = IstekSayfasi(f, sabit);
        QCOMPARE(istek.MetinNerede(8700, 280), isaret);
        QTEST(istek.MetinNerede(1650, 650), "istekte");
    }

    void zimmetSatirlari_data()
    {
        QTest::addColumn<QString>("cins");
        QTest::addColumn<QString>("miktar");
        QTest::newRow("entry: what came in") << u"G"_s << u"4"_s;
        QTest::newRow("issue: what went out") << u"C"_s << u"2,5"_s;
    }
    // Consumables and empty rows are left out; the counter closes the gaps
    // and ends the register number.
    void zimmetSatirlari()
    {
        QFETCH(QString, cins);
        QFETCH(QString, miktar);
        const Sayfa s = ZimmetSayfasi(
            yazim(cins, {satir(u"150 01 01 001"_s, u"Kağıt"_s, u"10"_s, u"10"_s),
                         satir(u"255 01 01 001"_s, u"Masa"_s, u"4"_s, u"2.5"_s), satir(u""_s, u"boş"_s, u"1"_s, u"1"_s),
                         satir(u"253 02 01 002"_s, u"Çalışma Koltuğu Döner Ayaklı Kolçaklı Deri"_s, u"4"_s, u"2.5"_s,
                               u"KİLOGRAM"_s)}),
            sabit);
        QCOMPARE(bant(s, 3100, 9080),
                 QStringList({u"80,3100 1"_s, u"750,3100 2550101001202671"_s, u"3260,3100 Masa"_s,
                              u"6700,3100 "_s + miktar, u"7600,3100 ADET"_s, u"80,3340 2"_s,
                              u"750,3340 2530201002202672"_s, u"3260,3340 Çalışma Koltuğu Döner Ayaklı Kolçak"_s,
                              u"6700,3340 "_s + miktar, u"7600,3340 KİLOGRA"_s}));
        const Sayfa tuketim =
            ZimmetSayfasi(yazim(cins, {satir(u"150 01 01 001"_s, u"Kağıt"_s, u"10"_s, u"10"_s)}), sabit);
        QVERIFY(bant(tuketim, 3100, 9080).isEmpty());
        QCOMPARE(tuketim.MetinNerede(2100, 940), u"Ankara / Çankaya"_s);
    }

    // Only lines handing out, numbered; the quantity twice at width 9.
    void istekSatirlari()
    {
        const Sayfa s = IstekSayfasi(
            yazim(u"G"_s, {satir(u"255 01 01 001"_s, u"Masa"_s, u"5"_s, u"2.5"_s),
                           satir(u"255 01 01 002"_s, u"Kalan"_s, u"5"_s, u""_s),
                           satir(u"255 01 01 003"_s, u"Sıfır"_s, u"5"_s, u"0"_s),
                           satir(u"255 01 01 004"_s, u"Virgüllü"_s, u"5"_s, u"0,5"_s),
                           satir(u"255 01 01 005"_s, u"Yazı"_s, u"5"_s, u"iki"_s),
                           satir(u"150.01.01.0001.0001"_s, u"A4 Fotokopi Kağıdı 80 Gram Beyaz 500 Yaprak"_s, u""_s,
                                 u"1234567"_s, u"KİLOGRAM"_s)}),
            sabit);
        QVariant buyuk = 1234567.;
        const QString a = QString(10, u' ') + u"2,50"_s, b = Tutar2Yaz(buyuk, 9);
        QCOMPARE(bant(s, 2100, 11200),
                 QStringList({u"180,2100 1"_s, u"730,2100 255 01 01 001"_s, u"2400,2100 Masa"_s, u"6000,2100 ADET"_s,
                              u"7200,2100 "_s + a, u"8900,2100 "_s + a, u"180,2340 2"_s, u"730,2340 150.01.01.0001.0"_s,
                              u"2400,2340 A4 Fotokopi Kağıdı 80 Gram Beyaz 500"_s, u"6000,2340 KİLOGRA"_s,
                              u"7200,2340 "_s + b, u"8900,2340 "_s + b}));
    }

    void yerlesim_data()
    {
        QTest::addColumn<SayfaYapici>("yapici");
        QTest::newRow("custody slip") << SayfaYapici(ZimmetSayfasi);
        QTest::newRow("request slip") << SayfaYapici(IstekSayfasi);
    }
    // Each value stands in a box clear of every rule, label and other value;
    // each label fits its place, clear of the rules.
    void yerlesim()
    {
        QFETCH(SayfaYapici, yapici);
        SabitSatiri genisSabit = sabit;
        for (QString& deger : genisSabit)
            deger = genis;
        const Sayfa s = yapici(dolu(), genisSabit);
        QVERIFY(s.yazilar.size() > 100);
        QVERIFY(FormCizimi::YerindeOlmayanlar(s).isEmpty());
        QVERIFY(FormCizimi::Cakisanlar(s).isEmpty());

        const QList<QRectF> kalemler = kalemAlanlari(s.zemin);
        for (const Etiket& e : s.zemin.etiketler) {
            const QRectF alan = QFontMetricsF(YaziFontu(e.punto, e.kalin))
                                    .boundingRect(e.alan, int(e.hiza) | Qt::TextWordWrap, e.metin);
            QVERIFY2(e.alan.contains(alan), qPrintable(e.metin));
            for (const QRectF& k : kalemler)
                QVERIFY2(!k.intersects(alan), qPrintable(e.metin));
            for (const SayfaYazisi& y : s.yazilar)
                QVERIFY2(!FormCizimi::YaziAlani(y).intersects(alan), qPrintable(e.metin + u" / "_s + y.metin));
        }
    }

    void ekran_data()
    {
        QTest::addColumn<bool>("zimmet");
        QTest::addColumn<QString>("baslik");
        QTest::addColumn<QPointF>("sabitYeri");
        QTest::newRow("custody slip") << true << u"Zimmet Fişi Yazdırma"_s << QPointF(2100, 1180);
        QTest::newRow("request slip") << false << u"İstek Belgesi Yazdırma"_s << QPointF(7450, 13212);
    }
    // The slip comes with the constants of the folder; without them it
    // comes after a message, with the voucher's own texts. Printing and
    // closing are the page screen's, tried on the voucher's page.
    void ekran()
    {
        QFETCH(bool, zimmet);
        QFETCH(QString, baslik);
        QFETCH(QPointF, sabitYeri);
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        SabitKayit::Kaydet(veri.Genel(), sabit);
        const auto ac = [&] {
            const CalismaBaglami baglam{u"2026"_s, u"3"_s, u"Okul"_s, &veri};
            return std::unique_ptr<SayfaEkrani>(zimmet ? static_cast<SayfaEkrani*>(new ZimmetYaz(baglam, dolu()))
                                                       : new IstekYaz(baglam, dolu()));
        };
        const auto ekran = ac();
        QCOMPARE(ekran->windowTitle(), baslik);
        QVERIFY(!ekran->Goruntu().MetinNerede(sabitYeri.x(), sabitYeri.y()).isEmpty());

        // Constants that cannot be read are named; the page shows without them.
        veri.Genel().Calistir(u"drop table Sabit"_s);
        ModalYanit y(u"Tamam"_s);
        const auto sabitsiz = ac();
        QVERIFY(y.Goruldu());
        QCOMPARE(sabitsiz->Goruntu().MetinNerede(sabitYeri.x(), sabitYeri.y()), QString());
        QVERIFY(!sabitsiz->Goruntu().yazilar.isEmpty());
    }
};

QTEST_MAIN(TstZimmetIstek)
#include "tst_zimmet_istek.moc"
