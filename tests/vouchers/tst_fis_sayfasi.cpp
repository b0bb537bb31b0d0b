#include "cikti.h"
#include "etkinlestir.h"
#include "fis_sayfasi.h"
#include "fis_yaz.h"
#include "form_cizimi.h"
#include "gecici_veri.h"
#include "hata_metni.h"
#include "kayit.h"
#include "modal_yanit.h"
#include "sabit_kayit.h"
#include "veri_klasoru.h"

#include <QFontMetricsF>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

SabitSatiri sabit()
{
    return {{u"ilAdi"_s, u"ANKARA / ÇANKAYA"_s},
            {u"ilKod"_s, u"06.01"_s},
            {u"KurumAdi"_s, u"Atatürk Anadolu Lisesi Müdürlüğü"_s},
            {u"KurumKod"_s, u"13.01.00.02"_s},
            {u"MuhasebeBirimiAdi"_s, u"Çankaya Malmüdürlüğü"_s},
            {u"MuhasebeBirimiKod"_s, u"06.107"_s},
            {u"AyniyatMemuru2"_s, u"Hüseyin Çağlayan"_s},
            {u"AyniyatMemuru1"_s, u"Taşınır Kontrol Yetkilisi"_s},
            {u"AmbarMemurAd"_s, u"Gülşen Doğruyol"_s},
            {u"AmbarMemur"_s, u"Taşınır Kayıt Yetkilisi"_s}};
}

QStringList satir(const QString& kod, const QString& ad, const QString& miktar, const QString& fiyat,
                  const QString& cikan = QString())
{
    QStringList s(FisSutun::Sayi);
    using namespace FisSutun;
    s[HesapKod] = kod, s[Ozellik] = ad, s[Birimi] = u"ADET"_s, s[Miktar] = miktar, s[BirimFiyat] = fiyat;
    s[BelgeTarih] = u"12.03.2026"_s, s[Cikan] = cikan, s[KimeVerildigi] = u"Mehmet Öztürk"_s;
    return s;
}

FisYazimi yazim(const QString& cins, const QList<QStringList>& satirlar)
{
    FisYazimi y;
    FisEkrani& f = y.fis;
    f.FisNo = u"7"_s, f.Tarih = u"15.03.2026"_s, f.FCins = f.Hangi = cins;
    f.KabulTarih = u"14.03.2026"_s, f.KabulSayi = u"2026/37"_s, f.BelgeSayi = u"Fatura 4471"_s;
    f.NeredenGeldigi = u"Yıldız Kırtasiye Ltd. Şti. Ankara"_s, f.TeslimAlan = u"Ayşe Yılmaz"_s;
    f.Satirlar = satirlar;
    y.IslemAd = cins == u"G" ? u"DevirYoluylaAlma"_s : u"Devretme/Bağışlama"_s;
    y.UniteAd2 = u"Müdür Yardımcılığı Odası"_s, y.HarfYazma = u"BinİkiYüzOtuzDört Lira Elli kuruş"_s;
    y.Text2 = u"12,5"_s, y.Text3 = u"1234,5"_s, y.KDVTOP = u"222,21"_s;
    return y;
}

// One line of paper, the voucher most cases print.
FisYazimi kagit(const QString& cins = u"G"_s, const QString& cikan = QString())
{
    return yazim(cins, {satir(u"150 01 01 001"_s, u"Kağıt"_s, u"4"_s, u"12.5"_s, cikan)});
}

// Wider than any field a voucher prints.
const QString genis = u"Ş"_s + QString(49, u'W');

// Each field at the longest the record keeps, in wide letters, and the widest
// amount in words; odd lines have the longest register number.
FisYazimi dolu(const QString& cins, int sayi)
{
    const QString cok = u"99999999999999"_s;
    QList<QStringList> satirlar;
    for (int i = 1; i <= sayi; ++i) {
        QStringList s = satir(i % 2 ? u"25501020010203040506"_s : genis.left(20), genis.left(30), cok,
                              u"9999999999999.99"_s, cins == u"C" ? cok : QString());
        s[FisSutun::Birimi] = i % 2 ? u"KİLOGRAM"_s : genis.left(7), s[FisSutun::KimeVerildigi] = genis.left(30);
        satirlar.append(s);
    }
    FisYazimi y = yazim(cins, satirlar);
    y.fis.TeslimAlan = genis, y.fis.NeredenGeldigi = genis.left(25), y.fis.KabulSayi = y.fis.BelgeSayi = genis.left(12);
    y.UniteAd2 = genis.left(30), y.HarfYazma = TutarYaziyla(999999999999.99);
    y.Text2 = cok, y.Text3 = y.KDVTOP = cok + u",99"_s;
    return y;
}

QStringList yazilari(const QList<SayfaYazisi>& yazilar)
{
    QStringList sonuc;
    for (const SayfaYazisi& y : yazilar)
        sonuc.append(u"%1,%2 %3 %4%5"_s.arg(y.x).arg(y.y).arg(y.punto).arg(y.kalin ? u"b "_s : u""_s, y.metin));
    return sonuc;
}
QStringList yazilari(const Sayfa& s) { return yazilari(s.yazilar); }

}

class TstFisSayfasi : public QObject, protected GeciciVeri
{
    Q_OBJECT

private slots:
    void bas_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<QString>("beklenen");
        QTest::addColumn<double>("punto");
        QTest::newRow("il") << 2200. << 640. << u"ANKARA / ÇANKAYA"_s << 10.;
        QTest::newRow("il code") << 8000. << 640. << u"06.01"_s << 10.;
        QTest::newRow("institution") << 2200. << 940. << u"Atatürk Anadolu Lisesi Müdürlüğü"_s << 10.;
        QTest::newRow("institution code") << 8000. << 940. << u"13.01.00.02"_s << 10.;
        QTest::newRow("accounting unit") << 2200. << 1470. << u"Çankaya Malmüdürlüğü"_s << 10.;
        QTest::newRow("accounting code") << 8000. << 1470. << u"06.107"_s << 10.;
        QTest::newRow("mark and number") << 8800. << 320. << u"G-7"_s << 14.;
        QTest::newRow("date") << 6700. << 370. << u"15.03.2026"_s << 11.;
        QTest::newRow("acceptance date") << 5600. << 1730. << u"14.03.2026"_s << 11.;
        QTest::newRow("acceptance number") << 8400. << 1730. << u"2026/37"_s << 11.;
        QTest::newRow("document date: row 1") << 5600. << 1950. << u"12.03.2026"_s << 11.;
        QTest::newRow("document number") << 8400. << 1950. << u"Fatura 4471"_s << 11.;
        QTest::newRow("transaction") << 150. << 2800. << u"DevirYoluylaAlma"_s << 11.;
        QTest::newRow("supplier, 24 characters") << 2200. << 2800. << u"Yıldız Kırtasiye Ltd. Şt"_s << 11.;
        QTest::newRow("recipient of row 1") << 5300. << 2800. << u"Mehmet Öztürk"_s << 11.;
        QTest::newRow("unit") << 8000. << 2800. << u"Müdür Yardımcılığı Odası"_s << 11.;
        QTest::newRow("amount in words") << 300. << 7930. << u"BinİkiYüzOtuzDört Lira Elli kuruş"_s << 9.;
        QTest::newRow("handed by: name") << 1800. << 12540. << u"Hüseyin Çağlayan"_s << 9.;
        QTest::newRow("handed by: title") << 1800. << 12760. << u"Taşınır Kontrol Yetkilisi"_s << 9.;
        QTest::newRow("received by: name") << 7050. << 12540. << u"Gülşen Doğruyol"_s << 9.;
        QTest::newRow("received by: title") << 7050. << 12760. << u"Taşınır Kayıt Yetkilisi"_s << 9.;
        QTest::newRow("control officer: name") << 1800. << 12980. << u"Gülşen Doğruyol"_s << 9.;
        QTest::newRow("control officer: title") << 1800. << 13200. << u"Taşınır Kayıt Yetkilisi"_s << 9.;
        QTest::newRow("receiver") << 7800. << 12980. << u"Ayşe Yılmaz"_s << 9.;
    }
    void bas()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        const Sayfa s = FisSayfasi(kagit(), sabit());
        const SayfaYazisi* yazi = s.YaziNerede(x, y);
        QVERIFY(yazi);
        QTEST(yazi->metin, "beklenen");
        QTEST(yazi->punto, "punto");
        QVERIFY(!yazi->kalin);
    }

    // The kind decides the mark, where the quantity is read and whether the
    // supplier is printed.
    void cins_data()
    {
        QTest::addColumn<QString>("cins");
        QTest::addColumn<QString>("cikan");
        QTest::addColumn<QString>("isaret");
        QTest::addColumn<QString>("miktar");
        QTest::addColumn<QString>("tutar");
        QTest::addColumn<QString>("nereden");
        const QString pay = QString(20, u' ');
        QTest::newRow("entry") << u"G"_s << u""_s << u"G-7"_s << u"4"_s << pay + u"50,00"_s
                               << u"Yıldız Kırtasiye Ltd. Şt"_s;
        QTest::newRow("entry that hands out") << u"G"_s << u"1"_s << u"GÇ-7"_s << u"4"_s << pay + u"50,00"_s
                                              << u"Yıldız Kırtasiye Ltd. Şt"_s;
        QTest::newRow("issue") << u"C"_s << u"3"_s << u"Ç-7"_s << u"3"_s << pay + u"37,50"_s << QString();
    }
    void cins()
    {
        QFETCH(QString, cins);
        QFETCH(QString, cikan);
        // The hand-out is on the second line: the mark looks at every line.
        const Sayfa s = FisSayfasi(yazim(cins, {satir(u"150 01 01 001"_s, u"Kağıt"_s, u"4"_s, u"12.5"_s, cikan),
                                                satir(u"150 01 01 001"_s, u"Kağıt"_s, u"4"_s, u"12.5"_s, cikan)}),
                                   sabit());
        QTEST(s.MetinNerede(8800, 320), "isaret");
        QTEST(s.MetinNerede(7260, 4700), "miktar");
        QCOMPARE(s.MetinNerede(8540, 4700), u"12,5"_s);
        QTEST(s.MetinNerede(9250, 4700), "tutar");
        QTEST(s.MetinNerede(2200, 2800), "nereden");
    }

    // Rows without a code keep their place; the number printed is the row's.
    void satirlar()
    {
        const Sayfa s = FisSayfasi(
            yazim(u"G"_s, {satir(u"150 01 01 001"_s, u"A4 Fotokopi Kağıdı 80 gr Beyaz"_s, u"10"_s, u"45"_s),
                           satir(QString(), u"silinmiş satır"_s, u"1"_s, u"1"_s),
                           satir(u"255 01 02 001 9"_s, u"Masaüstü Bilgisayar"_s, u"2"_s, u"18250,5"_s)}),
            sabit());
        QStringList govde;
        for (const SayfaYazisi& y : s.yazilar)
            if (y.y >= 4460 && y.y < 5180)
                govde.append(u"%1,%2 %3"_s.arg(y.x).arg(y.y).arg(y.metin));
        const QString pay = QString(18, u' ');
        QCOMPARE(govde, QStringList({u"1,4460 1"_s, u"1,4940 3"_s,
                                     u"350,4460 150 01 01 001"_s, u"350,4940 255 01 02 001 "_s,
                                     u"1600,4940 2550102001202673"_s,
                                     u"3660,4460 A4 Fotokopi Kağıdı 80 gr Be"_s, u"3660,4940 Masaüstü Bilgisayar"_s,
                                     u"6620,4460 ADET"_s, u"6620,4940 ADET"_s,
                                     u"7260,4460 10"_s, u"7260,4940 2"_s,
                                     u"8540,4460 45"_s, u"8540,4940 18250"_s,
                                     u"9250,4460 "_s + pay + u"450,00"_s,
                                     u"9250,4940 "_s + QString(12, u' ') + u"36.500,00"_s}));
    }

    void toplam_data()
    {
        QTest::addColumn<int>("son");
        QTest::addColumn<double>("y");
        QTest::newRow("no lines") << 0 << 4460.;
        QTest::newRow("last line 3") << 3 << 5180.;
        QTest::newRow("all 25 lines") << 25 << 10460.;
    }
    void toplam()
    {
        QFETCH(int, son);
        QFETCH(double, y);
        QList<QStringList> satirlar(son, satir(QString(), QString(), u"1"_s, u"1"_s));
        if (son > 0)
            satirlar.last() = satir(u"150 01 01 001"_s, u"Kağıt"_s, u"1"_s, u"1"_s);
        const Sayfa s = FisSayfasi(yazim(u"G"_s, satirlar), sabit());
        QCOMPARE(s.MetinNerede(8650, y), u"    Toplam :  "_s + QString(9, u' ') + u"1234,5"_s);
        const QString miktar = u" "_s + QString(11, u' ') + u"12,5"_s;
        QCOMPARE(yazilari(s).filter(u",11410 "_s),
                 QStringList({u"2140,11410 10 b Miktar"_s, u"2470,11410 10 b "_s + miktar,
                              u"7150,11410 10 b Miktar"_s, u"7480,11410 10 b "_s + miktar}));
    }

    // What an empty entry of the unit names reads as prints nothing.
    void uniteYok()
    {
        FisYazimi y = yazim(u"G"_s, {});
        y.UniteAd2 = u"false"_s;
        QVERIFY(!FisSayfasi(y, sabit()).YaziNerede(8000, 2800));
    }

    // A second press replaces what the first one put there; an amount that
    // is no number is refused and leaves the page as it was.
    void kdv_data()
    {
        QTest::addColumn<QString>("kdv");
        QTest::addColumn<QString>("kdvSatiri");
        QTest::addColumn<QString>("genelToplam");
        QTest::addColumn<QString>("hata");
        QTest::newRow("as computed") << u"222,21"_s << u"222,21"_s << u"1.456,71"_s << QString();
        QTest::newRow("overtyped") << u"100"_s << u"100,00"_s << u"1.334,50"_s << QString();
        QTest::newRow("half to even") << u"0,125"_s << u"0,12"_s << u"1.234,63"_s << QString();
        // The VAT line reads the box as a Turkish number, the grand total
        // through Val.
        QTest::newRow("point typed") << u"36.9"_s << u"369,00"_s << u"1.271,40"_s << QString();
        QTest::newRow("not a number") << u"yok"_s << u"999,00"_s << u"2.233,50"_s
                                      << u"KDV Tutarı bir sayı olmalı: yok"_s;
    }
    void kdv()
    {
        QFETCH(QString, kdv);
        QFETCH(QString, kdvSatiri);
        QFETCH(QString, genelToplam);
        const FisYazimi y = kagit();
        Sayfa s = FisSayfasi(y, sabit());
        const qsizetype once = s.yazilar.size();
        FisKdvYaz(s, y, u"999"_s);
        QTEST(HataMetni([&] { FisKdvYaz(s, y, kdv); }), "hata");
        QCOMPARE(s.yazilar.size(), once + 2);
        const auto hizali = [](const QString& m) { return QString(15 - m.size(), u' ') + m; };
        QCOMPARE(s.MetinNerede(8650, 4940), u"    KDV. ...  : "_s + hizali(kdvSatiri));
        const SayfaYazisi* genel = s.YaziNerede(8450, 5380);
        QVERIFY(genel);
        QCOMPARE(genel->metin, u"G.Toplam : "_s + hizali(genelToplam));
        QCOMPARE(genel->punto, 10.);
        QVERIFY(genel->kalin);
    }

    // Every value sits inside a box of the form, clear of its rules, and no
    // two values run into each other: the amount in words keeps its place
    // across lines 15 and 16 while they are empty, else goes whole under the
    // last line, or under the table's label after 25 lines.
    void yerlesim_data()
    {
        QTest::addColumn<QString>("cins");
        QTest::addColumn<int>("sayi");
        QTest::addColumn<double>("harfY");
        QTest::newRow("entry, 6 lines") << u"G"_s << 6 << 7930.;
        QTest::newRow("issue, 14 lines") << u"C"_s << 14 << 7930.;
        QTest::newRow("entry, 15 lines") << u"G"_s << 15 << 8060.;
        QTest::newRow("entry, 24 lines") << u"G"_s << 24 << 10220.;
        QTest::newRow("issue, 25 lines") << u"C"_s << 25 << 10700.;
        QTest::newRow("no lines") << u"G"_s << 0 << 7930.;
    }
    void yerlesim()
    {
        QFETCH(QString, cins);
        QFETCH(int, sayi);
        QFETCH(double, harfY);
        const FisYazimi y = dolu(cins, sayi);
        SabitSatiri s = sabit();
        for (QString& deger : s)
            deger = genis;
        Sayfa sayfa = FisSayfasi(y, s);
        FisKdvYaz(sayfa, y, y.KDVTOP);
        QCOMPARE(yazilari(FormCizimi::YerindeOlmayanlar(sayfa)), QStringList());
        QVERIFY(FormCizimi::Cakisanlar(sayfa).isEmpty());
        // Whole, set smaller on the baseline of its line.
        QVERIFY(std::any_of(sayfa.yazilar.begin(), sayfa.yazilar.end(), [&](const SayfaYazisi& yazi) {
            return yazi.metin == y.HarfYazma && yazi.y >= harfY && yazi.y < harfY + FormCizimi::SatirAdimi / 2;
        }));
    }

    // A value too wide for its box is set smaller, on its baseline, by the
    // least that makes it fit; at the floor it is cut.
    void sigdir_data()
    {
        QTest::addColumn<double>("punto");  // the size the box is made for
        QTest::addColumn<double>("eksik");  // twips of room less
        QTest::addColumn<double>("beklenen");
        const double taban = FormCizimi::EnKucukPunto;
        QTest::newRow("fits to the twip") << 9. << 0. << 9.;
        QTest::newRow("a twip short") << 9. << 1. << 8.95;
        QTest::newRow("fits at the floor") << taban << 0. << taban;
        QTest::newRow("a twip short at the floor: cut") << taban << 1. << taban;
    }
    void sigdir()
    {
        QFETCH(double, punto);
        QFETCH(double, eksik);
        QFETCH(double, beklenen);
        const QString metin(20, u'W');
        const auto olcu = [](double p) { return QFontMetricsF(YaziFontu(p, false)); };
        const double sag = 100 + olcu(punto).horizontalAdvance(metin) - eksik + FormCizimi::CerceveCizgisi / 2;
        Sayfa s;
        FormCizimi::Kutu(s.zemin, 0, 0, sag, 400, FormCizimi::CerceveCizgisi);
        FormCizimi::Sigdir(s, 100, 100, metin, 9, sag);
        const SayfaYazisi y = s.yazilar.value(0);
        QCOMPARE(y.punto, beklenen);
        QCOMPARE(y.y + olcu(beklenen).ascent(), 100 + olcu(9).ascent());
        const bool kesik = punto == FormCizimi::EnKucukPunto && eksik > 0;
        QCOMPARE(y.metin, kesik ? metin.left(y.metin.size() - 1) + u'…' : metin);
        QVERIFY(FormCizimi::YerindeOlmayanlar(s).isEmpty());
    }

    void ekran()
    {
        Yenile();
        SabitKayit::Kaydet(veri().Genel(), sabit());
        const FisYazimi y = yazim(u"G"_s, {satir(u"255 01 01 001"_s, u"Masa"_s, u"2"_s, u"100"_s)});
        BellekCikti cikti;
        const auto ekran = std::make_unique<FisYaz>(CalismaBaglami{u"2026"_s, u"3"_s, u"Okul"_s, &veri()}, y);
        ekran->CiktiSec(&cikti);
        ekran->show();
        Etkinlestir(ekran.get());
        QCOMPARE(ekran->windowTitle(), u"Fiş Yazdırma Önİzleme"_s);
        QCOMPARE(ekran->KDVTut->text(), u"222,21"_s);
        QCOMPARE(yazilari(ekran->Goruntu()), yazilari(FisSayfasi(y, sabit())));

        QTest::keyClick(ekran.get(), Qt::Key_F2);
        QCOMPARE(cikti.belgeler.size(), 1);
        QCOMPARE(cikti.belgeler[0].size(), 1);
        QCOMPARE(yazilari(cikti.belgeler[0][0]), yazilari(ekran->Goruntu()));
        QCOMPARE(cikti.belgeler[0][0].zemin.kutular.size(), ekran->Goruntu().zemin.kutular.size());

        ekran->KDVTut->setText(u"40"_s);
        ekran->CmdKDV->click();
        QCOMPARE(ekran->Goruntu().MetinNerede(8450, 5380), u"G.Toplam : "_s + QString(7, u' ') + u"1.274,50"_s);
        QCOMPARE(cikti.belgeler.size(), 2);
        QCOMPARE(yazilari(cikti.belgeler[1][0]), yazilari(ekran->Goruntu()));

        ekran->KDVTut->setText(u"kırk"_s);
        ModalYanit yanit(u"Tamam"_s);
        ekran->CmdKDV->click();
        QVERIFY(yanit.Goruldu());
        QCOMPARE(cikti.belgeler.size(), 2);

        // The scanned form in the folder takes the drawn one's place.
        QImage resim(40, 60, QImage::Format_RGB32);
        resim.fill(Qt::gray);
        QVERIFY(resim.save(VeriKlasoru::DosyaYolu(klasor(), u"FisY1.BMP"_s), "BMP"));
        const QStringList yazilar = yazilari(ekran->Goruntu());
        ekran->Command2->click();
        QCOMPARE(ekran->Goruntu().zemin.resim.size(), resim.size());
        QVERIFY(ekran->Goruntu().zemin.kutular.isEmpty());
        QCOMPARE(yazilari(ekran->Goruntu()), yazilar);

        Etkinlestir(ekran.get());
        QTest::keyClick(ekran.get(), Qt::Key_Escape);
        QVERIFY(!ekran->isVisible());
    }
};

QTEST_MAIN(TstFisSayfasi)
#include "tst_fis_sayfasi.moc"
