#include "gecici_veri.h"
#include "cikti.h"
#include "dusulen_l.h"
#include "dusum_kayit.h"
#include "dusum_l1.h"
#include "etkinlestir.h"
#include "grid_yazdir.h"
#include "liste_izgarasi.h"
#include "saat.h"
#include "tarih_secici.h"
#include "veritabani.h"
#include "veri.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

using Hucreler = QMap<int, QString>;

class TstDusumListesi : public QObject, protected GeciciVeri
{
    Q_OBJECT

    CalismaBaglami baglam() const { return {u"2026"_s, u"3"_s, QString(), &veri()}; }

    // The numbers a statement lists, in its order.
    QStringList malzemeler(const DusumListesi::Suzgec& s)
    {
        const FisListesi::Komut k = DusumListesi::MalzemeSorgusu(s);
        QStringList no;
        for (const QStringList& satir : veri().Ayniyat().Satirlar(k.sql, k.degerler))
            no << satir.at(3);
        return no;
    }
    QStringList dusulenler(const DusumListesi::Suzgec& s)
    {
        QStringList no;
        for (const QStringList& satir : DusumListesi::DusulenSatirlari(veri().Ayniyat(), s))
            no << satir.at(DusumListesi::DusulenFisNoSutunu);
        return no;
    }
    static QStringList gorunen(const ListeIzgarasi* t, int sutun)
    {
        QStringList no;
        for (int r = 1; r < t->Rows(); ++r)
            no << t->TextMatrix(r, sutun);
        return no;
    }
    template <typename Ekran>
    static Ekran* ac(Ekran* ekran)
    {
        ekran->show();
        Etkinlestir(ekran);
        return ekran;
    }
    static void ciftTikla(ListeIzgarasi* t, int satir)
    {
        const QPoint yer = t->visualRect(t->model()->index(satir - 1, 0)).center();
        QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, yer);
        QTest::mouseDClick(t->viewport(), Qt::LeftButton, {}, yer);
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        Veritabani& vt = veri().Ayniyat();
        const QString satir = u"insert into FIS (FisNo, Satir, Tarih, BelgeTarih, HesapKod, Ozellik, Unite, "
                              "KimeVerildigi, BirimFiyat, Birimi, FCins, FCinss) values (?, ?, ?, ?, ?, ?, ?, ?, ?, "
                              "'ADET', 'G', ?)"_s;
        const QVariant null;
        vt.Calistir(satir, {1, 4, "05.01.2026", "02.01.2026", "255 01 01 001", "MAVİ SANDALYE", "3", "Ali Kaya",
                            "250", ""});
        vt.Calistir(satir, {2, 1, "10.02.2026", "", "253 02 01 001", "KIRMIZI MATKAP", "12", "Zeki Er", "1800", ""});
        vt.Calistir(satir, {3, 1, "31.03.2026", "", "255 02 01 001", "MAVİ MASA", "5", "Mehmet Öz", "900", ""});
        vt.Calistir(satir, {4, 1, "06.01.2026", "", "150 01 01 001", "MAVİ KALEM", "3", "Ali Kaya", "5", ""});
        vt.Calistir(satir, {5, 1, "07.01.2026", "", "255 01 01 001", "SARI DOLAP", "3", "Ali Kaya", "700", "D"});
        vt.Calistir(satir, {6, 1, "08.01.2026", "", "255 01 01 001", "YEŞİL DOLAP", "3", "Ali Kaya", "700", null});
        vt.Calistir(satir, {7, 1, "01.04.2026", "", "254 01 01 001", "BEYAZ ARAÇ", "", "Nuri Tan", "90000", ""});
        const QString bas = u"insert into DUSUM_B (FisNo, Tarih, MalzAdi, BirimFiyat, KomisyonBaskaniAdi, Unite, "
                            "Ozellik, FCins) values (?, ?, ?, ?, ?, ?, ?, '')"_s;
        vt.Calistir(bas, {1, "14.01.2026", "Sandalye", "250", "Mustafa Çelik", "3", "MAVİ SANDALYE"});
        vt.Calistir(bas, {2, "20.02.2026", "Matkap", "1800", "Zeynep Arslan", "12", "KIRMIZI MATKAP"});
        // A head saved with an empty first row.
        vt.Calistir(bas, {3, "31.03.2026", "", "", "Mustafa Çelik", "", ""});
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values ('255 01 01 001', 'Sandalye')"_s);
    }
    void cleanup() { Saat::Ayarla({}); }

    // Durable lines not written off: class 150, a mark "D" and a Null mark
    // are never listed. The last filled box alone acts; the unit compares
    // with its text and a "%", so "3" passes over unit 3 itself.
    void malzemeSorgusu_data()
    {
        // Fiş no, kime verildiği, malzeme adı, özellik, ünite, hesap kod.
        QTest::addColumn<QStringList>("kutular");
        QTest::addColumn<QDate>("bas");
        QTest::addColumn<QDate>("bit");
        QTest::addColumn<int>("secenek");
        QTest::addColumn<QStringList>("beklenen");
        const QDate yok;
        const QStringList bos(6);
        QTest::newRow("hepsi") << bos << yok << yok << 1 << QStringList{"1", "2", "3", "7"};
        QTest::newRow("numaradan") << QStringList{"2x", "", "", "", "", ""} << yok << yok << 1
                                   << QStringList{"2", "3", "7"};
        QTest::newRow("kime verildiği numarayı düşürür") << QStringList{"3", "M", "", "", "", ""} << yok << yok << 1
                                                         << QStringList{"2", "3", "7"};
        QTest::newRow("malzeme adı süzmez") << QStringList{"3", "", "X", "", "", ""} << yok << yok << 1
                                            << QStringList{"3", "7"};
        QTest::newRow("özellik") << QStringList{"", "M", "", "mavi", "", ""} << yok << yok << 1
                                 << QStringList{"1", "3"};
        QTest::newRow("ünite yüzdeyle karşılaştırılır") << QStringList{"", "", "", "mavi", "3", ""} << yok << yok << 1
                                                        << QStringList{"3"};
        QTest::newRow("hesap kod özelliği yener") << QStringList{"", "", "", "KIRMIZI", "", "255"} << yok << yok << 1
                                                  << QStringList{"1", "3"};
        QTest::newRow("150 hiçbir süzgeçle") << QStringList{"", "", "", "", "", "150"} << yok << yok << 1
                                             << QStringList{};
        QTest::newRow("son günü dahil") << bos << QDate(2026, 2, 10) << QDate(2026, 3, 31) << 1
                                        << QStringList{"2", "3"};
        QTest::newRow("özellik sırası") << bos << yok << yok << 4 << QStringList{"7", "2", "3", "1"};
        QTest::newRow("kime verildiği sırası") << bos << yok << yok << 8 << QStringList{"1", "3", "7", "2"};
    }
    void malzemeSorgusu()
    {
        QFETCH(QStringList, kutular);
        QFETCH(QDate, bas);
        QFETCH(QDate, bit);
        QFETCH(int, secenek);
        QFETCH(QStringList, beklenen);
        DusumListesi::Suzgec s{kutular[0], kutular[1], {}, kutular[2], kutular[3], kutular[4], kutular[5], bas, bit,
                               secenek};
        QCOMPARE(malzemeler(s), beklenen);
    }

    // The heads in the grid's order; a head without lines shows too.
    void dusulenSatirlari_data()
    {
        // Fiş no, komisyon başkanı, malzeme adı, özellik, ünite.
        QTest::addColumn<QStringList>("kutular");
        QTest::addColumn<QDate>("bit");
        QTest::addColumn<int>("secenek");
        QTest::addColumn<QStringList>("beklenen");
        const QStringList bos(5);
        QTest::newRow("hepsi") << bos << QDate() << 1 << QStringList{"1", "2", "3"};
        QTest::newRow("numaradan") << QStringList{"2", "", "", "", ""} << QDate() << 1 << QStringList{"2", "3"};
        QTest::newRow("komisyon başkanı") << QStringList{"2", "mus", "", "", ""} << QDate() << 1
                                          << QStringList{"1", "3"};
        QTest::newRow("malzeme adı başkanı değiştirir") << QStringList{"", "mus", "mat", "", ""} << QDate() << 1
                                                        << QStringList{"2"};
        QTest::newRow("ünite en son") << QStringList{"", "", "mat", "MAVİ", "2"} << QDate() << 1
                                      << QStringList{"1"};
        QTest::newRow("bitişten bir gün önce") << bos << QDate(2026, 3, 30) << 1 << QStringList{"1", "2"};
        QTest::newRow("malzeme adı sırası") << bos << QDate() << 3 << QStringList{"3", "2", "1"};
    }
    void dusulenSatirlari()
    {
        QFETCH(QStringList, kutular);
        QFETCH(QDate, bit);
        QFETCH(int, secenek);
        QFETCH(QStringList, beklenen);
        DusumListesi::Suzgec s{kutular[0], {}, kutular[1], kutular[2], kutular[3], kutular[4], {}, {}, bit, secenek};
        QCOMPARE(dusulenler(s), beklenen);
        QCOMPARE(DusumListesi::DusulenSatirlari(veri().Ayniyat(), {}).value(0),
                 (QStringList{"3", "Sandalye", "MAVİ SANDALYE", "1", "14.01.2026", "250", "Mustafa Çelik"}));
    }

    void bitisTarihi_data()
    {
        QTest::addColumn<QDate>("bugun");
        QTest::addColumn<QString>("yil");
        QTest::addColumn<QDate>("beklenen");
        QTest::newRow("geçmiş yıl") << QDate(2026, 3, 14) << "2025" << QDate(2025, 12, 31);
        QTest::newRow("bu yıl") << QDate(2026, 3, 14) << "2026" << QDate(2026, 3, 14);
        QTest::newRow("29 şubatsız yıl") << QDate(2028, 2, 29) << "2029" << QDate(2029, 3, 1);
    }
    void bitisTarihi()
    {
        QFETCH(QDate, bugun);
        QFETCH(QString, yil);
        QFETCH(QDate, beklenen);
        Saat::Ayarla(bugun);
        QCOMPARE(DusumListesi::BitisTarihi(yil), beklenen);
    }

    // The material list opens up to today; Enter hands the row to the
    // write-off grid and closes (a double click takes the same way). The class name comes from GENEL.MDB, the
    // year from the voucher date; the quantity stays empty.
    void malzemeSecimi()
    {
        QPointer<Dusum_L1> liste = ac(new Dusum_L1(baglam()));
        auto* t = liste->findChild<ListeIzgarasi*>(u"T"_s);
        QCOMPARE(liste->findChild<TarihSecici*>(u"Tarih1"_s)->Metin(), u"14.03.2026"_s);
        QCOMPARE(gorunen(t, 3), (QStringList{"1", "2"}));
        QSignalSpy secilen(liste.data(), &Dusum_L1::SatirSecildi);
        QTest::keyClick(liste->findChild<QLineEdit*>(u"FisNo"_s), Qt::Key_Down);
        t->SatirSec(1);
        QTest::keyClick(t, Qt::Key_Return);
        QCOMPARE(secilen.size(), 1);
        const Hucreler beklenen{
            {DusumSutun::Unite, "3"},        {DusumSutun::HesapKod, "255 01 01 001"},
            {DusumSutun::MalzAdi, "Sandalye"}, {DusumSutun::Ozellik, "MAVİ SANDALYE"},
            {DusumSutun::Birimi, "ADET"},    {DusumSutun::BirimFiyat, "250"},
            {DusumSutun::Tarih, "05.01.2026"}, {DusumSutun::FisNo, "1"},
            {DusumSutun::Yil, "2026"},       {DusumSutun::Satir, "4"}};
        QCOMPARE(secilen.at(0).at(0).value<Hucreler>(), beklenen);
        QTRY_VERIFY(!liste);
    }

    // The material list prints under its two title lines in the small print
    // and ends at the first row without a description.
    void malzemeYazdirma()
    {
        veri().Ayniyat().Calistir(u"update FIS set Ozellik = '' where FisNo = 2"_s);
        std::unique_ptr<Dusum_L1> liste(ac(new Dusum_L1(baglam())));
        liste->findChild<TarihSecici*>(u"Tarih1"_s)->setDate(QDate(2026, 3, 31));
        BellekCikti cikti;
        liste->CiktiSec(&cikti);
        liste->findChild<QPushButton*>(u"Command12"_s)->click();
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.yazilar.value(0).metin, u"  Makbuz Kayıtları Listesi    14.03.2026"_s);
        QCOMPARE(s.yazilar.value(1).metin, u"  Fiş Listesi    "_s);
        QCOMPARE(s.YaziNerede(5 * MmTwip, 15 * MmTwip)->punto, 8.5);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 15 * MmTwip), u"Ünite"_s);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 20 * MmTwip), u"3"_s);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 25 * MmTwip), u"12"_s);
        QVERIFY(s.MetinNerede(5 * MmTwip, 30 * MmTwip).isNull());
    }

    // The write-off list: Enter hands the number over and stays, a double
    // click also closes; no row says so; the print is the voucher list's.
    void dusulenSecimi()
    {
        QPointer<Dusulen_L> liste = ac(new Dusulen_L(baglam()));
        auto* t = liste->findChild<ListeIzgarasi*>(u"T"_s);
        QCOMPARE(gorunen(t, 3), (QStringList{"1", "2"}));
        QSignalSpy secilen(liste.data(), &Dusulen_L::DusumSecildi);
        t->SatirSec(2);
        QTest::keyClick(t, Qt::Key_Return);
        QVERIFY(liste->isVisible());

        BellekCikti cikti;
        liste->CiktiSec(&cikti);
        liste->findChild<QPushButton*>(u"Command12"_s)->click();
        const Sayfa& s = cikti.belgeler.value(0).value(0);
        QCOMPARE(s.MetinNerede(10 * MmTwip, 5 * MmTwip), u"  Fiş Listesi    "_s);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 25 * MmTwip), u"12"_s);

        QTest::keyClicks(liste->findChild<QLineEdit*>(u"MalzAdi"_s), u"yok"_s);
        QCOMPARE(t->Rows(), 1);
        QVERIFY(liste->DurumSatiri()->isVisible());
        QCOMPARE(liste->DurumSatiri()->text(), u"    Kayıt Bulunamadı ..     "_s);
        liste->findChild<QLineEdit*>(u"MalzAdi"_s)->clear();
        QVERIFY(!liste->DurumSatiri()->isVisible());
        ciftTikla(t, 1);
        QTRY_VERIFY(!liste);
        QCOMPARE(secilen.size(), 2);
        QCOMPARE(secilen.at(0).at(0).toString(), u"2"_s);
        QCOMPARE(secilen.at(1).at(0).toString(), u"1"_s);
    }
};

QTEST_MAIN(TstDusumListesi)
#include "tst_dusum_listesi.moc"
