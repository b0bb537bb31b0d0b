#include "cikti.h"
#include "fis_kayit.h"
#include "fis_satir.h"
#include "gecici_veri.h"
#include "grid_yazdir.h"
#include "izgara.h"
#include "veritabani.h"
#include "veri.h"
#include "yazici.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TstFisSatir : public QObject, protected GeciciVeri
{
    Q_OBJECT


    void satir(int fisNo, const QString& kod, const QString& ozellik, const QString& miktar, const QString& cikan,
               const QVariant& fcinss = {})
    {
        veri().Ayniyat().Calistir(u"insert into FIS (FisNo, Tarih, HesapKod, Ozellik, Miktar, Cikan, FCinss, Unite, "
                                  "KimeVerildigi, BirimFiyat) values (?, '10.03.2026', ?, ?, ?, ?, ?, '', '', '5')"_s,
                                  {fisNo, kod, ozellik, miktar, cikan, fcinss});
    }
    static QList<QStringList> bosSatirlar()
    {
        return QList<QStringList>(FisSatir::SatirSayisi, QStringList(FisSutun::Sayi, QString()));
    }

private slots:
    void init() { Yenile(); }

    void gridEnter_data()
    {
        using namespace FisSutun;
        QTest::addColumn<int>("satir");
        QTest::addColumn<int>("sutun");
        QTest::addColumn<QString>("fiyat");
        QTest::addColumn<int>("yeniSatir");
        QTest::addColumn<int>("yeniSutun");
        QTest::addColumn<QString>("tarih");
        QTest::newRow("3 → 5") << 2 << int(Ozellik) << "" << 2 << int(Miktar) << QString();
        QTest::newRow("5 → 7, no word") << 2 << int(Miktar) << "5" << 2 << int(BelgeTarih) << QString();
        QTest::newRow("9 → 10") << 2 << int(IslemTur) << "" << 2 << int(Cikan) << QString();
        QTest::newRow("10 → 11") << 2 << int(Cikan) << "" << 2 << int(KimeVerildigi) << QString();
        QTest::newRow("12 → 13") << 2 << int(AmbarNo) << "" << 2 << int(KDV) << QString();
        QTest::newRow("13 stays") << 2 << int(KDV) << "" << 2 << int(KDV) << QString();
        QTest::newRow("0 → 2") << 2 << int(Sira) << "" << 2 << int(MalzAdi) << QString();
        QTest::newRow("past 13: next row") << 25 << int(OzelKod) << "" << 26 << int(MalzAdi) << QString();
        QTest::newRow("price 2") << 2 << int(BirimFiyat) << "2" << 2 << int(Unite) << "KDV    ";
        QTest::newRow("price 8") << 2 << int(BirimFiyat) << "8" << 2 << int(Unite) << "NazımHesap";
        QTest::newRow("price 1") << 2 << int(BirimFiyat) << "1" << 2 << int(Unite) << QString();
        QTest::newRow("price 5,0") << 2 << int(BirimFiyat) << "5,0" << 2 << int(Unite) << QString();
        QTest::newRow("price ' 5'") << 2 << int(BirimFiyat) << " 5" << 2 << int(Unite) << QString();
    }
    void gridEnter()
    {
        QFETCH(int, satir);
        QFETCH(int, sutun);
        QFETCH(QString, fiyat);
        QFETCH(QString, tarih);
        const FisSatir::EnterSonucu s = FisSatir::GridEnter({satir, sutun}, fiyat);
        QTEST(s.hucre.satir, "yeniSatir");
        QTEST(s.hucre.sutun, "yeniSutun");
        QCOMPARE(s.tarih, tarih);
        QCOMPARE(s.tarih.isNull(), tarih.isNull());
    }

    void asagiKopyala_data()
    {
        using namespace FisSutun;
        QTest::addColumn<int>("sutun");
        QTest::addColumn<QString>("metin");
        QTest::addColumn<bool>("asagi");
        QTest::addColumn<QString>("alttaki");
        QTest::addColumn<QString>("alttakiKdv");
        QTest::newRow("description") << int(Ozellik) << "MAVİ" << true << "MAVİ" << "";
        QTest::newRow("code with its rate") << int(HesapKod) << "150 01 01 001" << true << "150 01 01 001" << "18";
        QTest::newRow("empty name, rate still") << int(MalzAdi) << "" << false << "" << "18";
        QTest::newRow("empty cell") << int(Miktar) << "" << false << "" << "";
    }
    void asagiKopyala()
    {
        QFETCH(int, sutun);
        QFETCH(QString, metin);
        QList<QStringList> s = bosSatirlar();
        s[3][sutun] = metin;
        s[3][FisSutun::KDV] = u"18"_s;
        s[4][sutun] = QString();
        QTEST(FisSatir::AsagiKopyala(s, {4, sutun}), "asagi");
        QTEST(s[4][sutun], "alttaki");
        QTEST(s[4][FisSutun::KDV], "alttakiKdv");
        QCOMPARE(s[3][sutun], metin);
    }

    void satirSil()
    {
        QList<QStringList> s = bosSatirlar();
        for (int r = 0; r < FisSatir::SatirSayisi; ++r)
            s[r][FisSutun::HesapKod] = QString::number(r + 1);
        FisSatir::SatirSil(s, 2);
        QCOMPARE(s.size(), FisSatir::SatirSayisi);
        QCOMPARE(s[0][FisSutun::HesapKod], u"1"_s);
        QCOMPARE(s[1][FisSutun::HesapKod], u"3"_s);
        QCOMPARE(s[23][FisSutun::HesapKod], u"25"_s);
        QCOMPARE(s[24], QStringList(FisSutun::Sayi, QString()));
    }

    void hareketListeleri()
    {
        satir(2, u"150 01 01 001"_s, u"MAVİ"_s, u"10"_s, QString());
        satir(1, u"150 01 01 001"_s, u"MAVİ"_s, u"4,5"_s, u"1"_s);
        satir(3, u"150 01 01 001"_s, u"MAVİ"_s, QString(), u"3"_s, u"D"_s);
        satir(4, u"150 01 01 001"_s, u"KIRMIZI"_s, QString(), u"2"_s, u""_s);
        satir(5, u"255 01 01 001"_s, u"MAVİ"_s, u"1"_s, QString());

        // By code the written-off line is left out.
        const FisSatir::HareketListesi kod = FisSatir::HesapHareketListe(veri().Ayniyat(), u"150 01 01 001"_s);
        QStringList numaralar;
        for (const QStringList& s : kod.satirlar)
            numaralar << s.at(2);
        QCOMPARE(numaralar, (QStringList{"1", "2", "4"}));
        QCOMPARE(kod.satirlar[0], (QStringList{"MAVİ", "5", "1", "4,5", "1", "10.03.2026", "", ""}));
        // Val stops at the comma.
        QCOMPARE(kod.Gelen, 14.0);
        QCOMPARE(kod.Cikan, 3.0);
        QCOMPARE(kod.Kalan, 11.0);

        // By description it is counted, whatever the code.
        const FisSatir::HareketListesi oz = FisSatir::OzellikHareketListe(veri().Ayniyat(), u"MAVİ"_s);
        QCOMPARE(oz.satirlar.size(), 4);
        QCOMPARE(oz.Gelen, 15.0);
        QCOMPARE(oz.Cikan, 4.0);
        QCOMPARE(oz.Kalan, 11.0);
        QVERIFY(FisSatir::OzellikHareketListe(veri().Ayniyat(), u"YOK"_s).satirlar.isEmpty());
    }

    void hareketYazdir()
    {
        BellekCikti cikti;
        Yazici p(&cikti);
        const Izgara liste({FisSatir::HareketBasliklari(), {"MAVİ", "5", "1", "10", "", "10.03.2026", "", ""}},
                           FisSatir::HareketGenislikleri());
        FisSatir::HareketYazdir(p, u"150 01 01 001"_s, u"A4 KAĞIT"_s, u"14.03.2026"_s, liste, u"1.250,00"_s);
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& sayfa = cikti.belgeler[0][0];
        QCOMPARE(sayfa.MetinNerede(10 * MmTwip, 5 * MmTwip), u"150 01 01 001 - A4 KAĞIT      Tarih :2026"_s);
        QCOMPARE(sayfa.MetinNerede(5 * MmTwip, 20 * MmTwip), u"MAVİ"_s);
        // The total follows the grid's last line at the left edge.
        const SayfaYazisi& son = sayfa.yazilar.last();
        QCOMPARE(son.metin, u"Toplam :1.250,00"_s);
        QCOMPARE(son.x, 0.0);
        QVERIFY(son.y > 20 * MmTwip);
    }

    void aramaListeleri()
    {
        Veritabani& genel = veri().Genel();
        const QString ekle = u"insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1) values (?, ?, ?, ?)"_s;
        genel.Calistir(ekle, {u"255 01 01 001"_s, u"Bilgisayar "_s, u"ADET"_s, u" 20"_s});
        genel.Calistir(ekle, {u"150 01 01 001"_s, u"Ayraç"_s, QString(), QString()});
        genel.Calistir(ekle, {u"150 01 01 002"_s, u"Ayraç"_s, QString(), QString()});
        genel.Calistir(ekle, {QString(), u"Çivi"_s, QString(), QString()});
        QCOMPARE(FisSatir::HesKodListesi(genel),
                 (QStringList{"150 01 01 001 Ayraç", "150 01 01 002 Ayraç", "255 01 01 001 Bilgisayar"}));
        QCOMPARE(FisSatir::SinifAdlari(genel), (QStringList{"Ayraç", "Bilgisayar ", "Çivi"}));

        // A picked item is looked up by its first 13 characters.
        const std::optional<FisSatir::Sinif> sinif = FisSatir::KodlaSinif(genel, u"255 01 01 001 Bilgisayar"_s);
        QVERIFY(sinif);
        QCOMPARE((QStringList{sinif->MalzAdi, sinif->KDV1, sinif->Birimi}), (QStringList{"Bilgisayar", "20", "ADET"}));
        QVERIFY(!FisSatir::KodlaSinif(genel, u"255 01 01 00"_s));
        QCOMPARE(FisSatir::AdlaSinif(genel, u"Bilgisayar "_s)->HesapKod, u"255 01 01 001"_s);
        QCOMPARE(FisSatir::MalzAdGetir(genel, u"255 01 01 001"_s), u"Bilgisayar "_s);
        QVERIFY(!FisSatir::MalzAdGetir(genel, u"999"_s));

        genel.Calistir(u"insert into Unite_K (UniteKod, UniteAd) values ('5', 'Kütüphane'), ('3', 'Ambar')"_s);
        QCOMPARE(FisSatir::UniteAdlari(genel), (QStringList{"Ambar", "Kütüphane"}));
        QCOMPARE(FisSatir::UniteKodu(genel, u"Kütüphane"_s), u"5"_s);

        veri().Ayniyat().Calistir(u"insert into FIS_B (FisNo, FCins, TeslimAlan) values (1, 'G', 'Veli'), "
                                  "(2, 'G', 'Ali'), (3, 'G', 'Veli'), (4, 'G', NULL), (5, 'C', 'Can')"_s);
        QCOMPARE(FisSatir::TeslimAlanlar(veri().Ayniyat(), u"G"_s), (QStringList{"Ali", "Veli"}));
        QCOMPARE(FisSatir::TeslimAlanlar(veri().Ayniyat(), u"C"_s), QStringList{"Can"});
    }
};

QTEST_MAIN(TstFisSatir)
#include "tst_fis_satir.moc"
