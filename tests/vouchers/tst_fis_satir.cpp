#include "gecici_veri.h"
#include "cikti.h"
#include "fis_kayit.h"
#include "fis_satir.h"
#include "grid_yazdir.h"
#include "izgara.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "yazici.h"
#include "veri.h"

#include <QTemporaryDir>
#include <QtTest>

class TstFisSatir : public QObject, protected GeciciVeri
{
    Q_OBJECT


    void calistir(Dosya dosya, const QString& sql, const QVariantList& degerler)
    {
        Veritabani& vt = veri().Baglanti(dosya);
        vt.Calistir(sql, degerler);
    }
    void satir(int fisNo, const QString& kod, const QString& ozellik, const QString& miktar, const QString& cikan,
               const QString& fcinss = QString())
    {
        calistir(Dosya::Ayniyat,
                 QStringLiteral("insert into FIS (FisNo, Tarih, HesapKod, Ozellik, Miktar, Cikan, FCinss, Unite, "
                                "KimeVerildigi, BirimFiyat) values (?, '10.03.2026', ?, ?, ?, ?, ?, '', '', '5')"),
                 {fisNo, kod, ozellik, miktar, cikan, fcinss.isNull() ? QVariant() : QVariant(fcinss)});
    }
    static QList<QStringList> bosSatirlar()
    {
        return QList<QStringList>(FisSatir::SatirSayisi, QStringList(FisSutun::Sayi, QString()));
    }

private slots:
    void init()
    {
        Yenile();
        veri();
    }

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
        QTest::newRow("4 → 6") << 2 << int(Birimi) << "" << 2 << int(BirimFiyat) << QString();
        QTest::newRow("5 → 7, no word") << 2 << int(Miktar) << "5" << 2 << int(BelgeTarih) << QString();
        QTest::newRow("10 → 11") << 2 << int(Cikan) << "" << 2 << int(KimeVerildigi) << QString();
        QTest::newRow("12 → 13") << 2 << int(AmbarNo) << "" << 2 << int(KDV) << QString();
        QTest::newRow("13 stays") << 2 << int(KDV) << "" << 2 << int(KDV) << QString();
        QTest::newRow("0 → 2") << 2 << int(Sira) << "" << 2 << int(MalzAdi) << QString();
        QTest::newRow("past 13: next row") << 25 << int(OzelKod) << "" << 26 << int(MalzAdi) << QString();
        QTest::newRow("price 5") << 2 << int(BirimFiyat) << "5" << 2 << int(Unite) << "İlçe.Verilen";
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
        QFETCH(int, yeniSatir);
        QFETCH(int, yeniSutun);
        QFETCH(QString, tarih);
        const FisSatir::EnterSonucu s = FisSatir::GridEnter({satir, sutun}, fiyat);
        QCOMPARE(s.hucre.satir, yeniSatir);
        QCOMPARE(s.hucre.sutun, yeniSutun);
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
        QFETCH(bool, asagi);
        QFETCH(QString, alttaki);
        QFETCH(QString, alttakiKdv);
        QList<QStringList> s = bosSatirlar();
        s[3][sutun] = metin;
        s[3][FisSutun::KDV] = QStringLiteral("18");
        s[4][sutun] = QString();
        QCOMPARE(FisSatir::AsagiKopyala(s, {4, sutun}), asagi);
        QCOMPARE(s[4][sutun], alttaki);
        QCOMPARE(s[4][FisSutun::KDV], alttakiKdv);
        QCOMPARE(s[3][sutun], metin);
    }

    void satirSil()
    {
        QList<QStringList> s = bosSatirlar();
        for (int r = 0; r < FisSatir::SatirSayisi; ++r)
            s[r][FisSutun::HesapKod] = QString::number(r + 1);
        FisSatir::SatirSil(s, 2);
        QCOMPARE(s.size(), FisSatir::SatirSayisi);
        QCOMPARE(s[0][FisSutun::HesapKod], QStringLiteral("1"));
        QCOMPARE(s[1][FisSutun::HesapKod], QStringLiteral("3"));
        QCOMPARE(s[23][FisSutun::HesapKod], QStringLiteral("25"));
        QCOMPARE(s[24], QStringList(FisSutun::Sayi, QString()));
    }

    void hareketListeleri()
    {
        satir(2, QStringLiteral("150 01 01 001"), QStringLiteral("MAVİ"), QStringLiteral("10"), QString());
        satir(1, QStringLiteral("150 01 01 001"), QStringLiteral("MAVİ"), QStringLiteral("4,5"), QStringLiteral("1"));
        satir(3, QStringLiteral("150 01 01 001"), QStringLiteral("MAVİ"), QString(), QStringLiteral("3"),
              QStringLiteral("D"));
        satir(4, QStringLiteral("150 01 01 001"), QStringLiteral("KIRMIZI"), QString(), QStringLiteral("2"),
              QStringLiteral(""));
        satir(5, QStringLiteral("255 01 01 001"), QStringLiteral("MAVİ"), QStringLiteral("1"), QString());

        // By code the written-off line is left out.
        const FisSatir::HareketListesi kod = FisSatir::HesapHareketListe(veri().Ayniyat(), QStringLiteral("150 01 01 001"));
        QStringList numaralar;
        for (const QStringList& s : kod.satirlar)
            numaralar << s.at(2);
        QCOMPARE(numaralar, (QStringList{"1", "2", "4"}));
        QCOMPARE(kod.satirlar[0],
                 (QStringList{"MAVİ", "5", "1", "4,5", "1", "10.03.2026", "", ""}));
        // Val stops at the comma.
        QCOMPARE(kod.Gelen, 14.0);
        QCOMPARE(kod.Cikan, 3.0);
        QCOMPARE(kod.Kalan, 11.0);

        // By description it is counted, whatever the code.
        const FisSatir::HareketListesi oz = FisSatir::OzellikHareketListe(veri().Ayniyat(), QStringLiteral("MAVİ"));
        QCOMPARE(oz.satirlar.size(), 4);
        QCOMPARE(oz.Gelen, 15.0);
        QCOMPARE(oz.Cikan, 4.0);
        QCOMPARE(oz.Kalan, 11.0);
        QVERIFY(FisSatir::OzellikHareketListe(veri().Ayniyat(), QStringLiteral("YOK")).satirlar.isEmpty());
    }

    void hareketYazdir()
    {
        BellekCikti cikti;
        Yazici p(&cikti);
        const Izgara liste({FisSatir::HareketBasliklari(), {"MAVİ", "5", "1", "10", "", "10.03.2026", "", ""}},
                           FisSatir::HareketGenislikleri());
        FisSatir::HareketYazdir(p, QStringLiteral("150 01 01 001"), QStringLiteral("A4 KAĞIT"),
                                QStringLiteral("14.03.2026"), liste, QStringLiteral("1.250,00"));
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& sayfa = cikti.belgeler[0][0];
        QCOMPARE(sayfa.MetinNerede(10 * MmTwip, 5 * MmTwip),
                 QStringLiteral("150 01 01 001 - A4 KAĞIT      Tarih :2026"));
        QCOMPARE(sayfa.MetinNerede(5 * MmTwip, 15 * MmTwip), QStringLiteral("MalzemeÖzellik"));
        QCOMPARE(sayfa.MetinNerede(5 * MmTwip, 20 * MmTwip), QStringLiteral("MAVİ"));
        // The total follows the grid's last line at the left edge.
        const SayfaYazisi& son = sayfa.yazilar.last();
        QCOMPARE(son.metin, QStringLiteral("Toplam :1.250,00"));
        QCOMPARE(son.x, 0.0);
        QVERIFY(son.y > 20 * MmTwip);
    }

    void aramaListeleri()
    {
        const QString ekle = QStringLiteral("insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1) values (?, ?, ?, ?)");
        calistir(Dosya::Genel, ekle, {QStringLiteral("255 01 01 001"), QStringLiteral("Bilgisayar "),
                                      QStringLiteral("ADET"), QStringLiteral(" 20")});
        calistir(Dosya::Genel, ekle, {QStringLiteral("150 01 01 001"), QStringLiteral("Ayraç"), QString(), QString()});
        calistir(Dosya::Genel, ekle, {QStringLiteral("150 01 01 002"), QStringLiteral("Ayraç"), QString(), QString()});
        calistir(Dosya::Genel, ekle, {QString(), QStringLiteral("Çivi"), QString(), QString()});
        QCOMPARE(FisSatir::HesKodListesi(veri().Genel()),
                 (QStringList{"150 01 01 001 Ayraç", "150 01 01 002 Ayraç", "255 01 01 001 Bilgisayar"}));
        QCOMPARE(FisSatir::SinifAdlari(veri().Genel()), (QStringList{"Ayraç", "Bilgisayar ", "Çivi"}));

        // A picked item is looked up by its first 13 characters.
        const std::optional<FisSatir::Sinif> sinif =
            FisSatir::KodlaSinif(veri().Genel(), QStringLiteral("255 01 01 001 Bilgisayar"));
        QVERIFY(sinif);
        QCOMPARE(sinif->MalzAdi, QStringLiteral("Bilgisayar"));
        QCOMPARE(sinif->KDV1, QStringLiteral("20"));
        QCOMPARE(sinif->Birimi, QStringLiteral("ADET"));
        QVERIFY(!FisSatir::KodlaSinif(veri().Genel(), QStringLiteral("255 01 01 00")));
        QCOMPARE(FisSatir::AdlaSinif(veri().Genel(), QStringLiteral("Bilgisayar "))->HesapKod, QStringLiteral("255 01 01 001"));
        QCOMPARE(FisSatir::MalzAdGetir(veri().Genel(), QStringLiteral("255 01 01 001")), QStringLiteral("Bilgisayar "));
        QVERIFY(!FisSatir::MalzAdGetir(veri().Genel(), QStringLiteral("999")));

        calistir(Dosya::Genel, QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values ('5', 'Kütüphane')"), {});
        calistir(Dosya::Genel, QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values ('3', 'Ambar')"), {});
        QCOMPARE(FisSatir::UniteAdlari(veri().Genel()), (QStringList{"Ambar", "Kütüphane"}));
        QCOMPARE(FisSatir::UniteKodu(veri().Genel(), QStringLiteral("Kütüphane")), QStringLiteral("5"));

        const QString bas = QStringLiteral("insert into FIS_B (FisNo, FCins, TeslimAlan) values (?, ?, ?)");
        calistir(Dosya::Ayniyat, bas, {1, QStringLiteral("G"), QStringLiteral("Veli")});
        calistir(Dosya::Ayniyat, bas, {2, QStringLiteral("G"), QStringLiteral("Ali")});
        calistir(Dosya::Ayniyat, bas, {3, QStringLiteral("G"), QStringLiteral("Veli")});
        calistir(Dosya::Ayniyat, bas, {4, QStringLiteral("G"), QString()});
        calistir(Dosya::Ayniyat, bas, {5, QStringLiteral("C"), QStringLiteral("Can")});
        QCOMPARE(FisSatir::TeslimAlanlar(veri().Ayniyat(), QStringLiteral("G")), (QStringList{"Ali", "Veli"}));
        QCOMPARE(FisSatir::TeslimAlanlar(veri().Ayniyat(), QStringLiteral("C")), QStringList{"Can"});
    }
};

QTEST_MAIN(TstFisSatir)
#include "tst_fis_satir.moc"
