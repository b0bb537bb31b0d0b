#include "gecici_veri.h"
#include "fis_kayit.h"
#include "saat.h"
#include "tek_deger.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "veri.h"

#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

class TstFisKayit : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static FisEkrani giris(const QString& no = QStringLiteral("5"))
    {
        FisEkrani f;
        f.FisNo = no;
        f.Tarih = QStringLiteral("10.03.2026");
        f.FCins = f.Hangi = QStringLiteral("G");
        f.CalisYil = QStringLiteral("2026");
        f.CalisAy = QStringLiteral("3");
        f.KabulSayi = QStringLiteral("12");
        f.KabulTarih = QStringLiteral("11.03.2026");
        f.TeslimAlan = QStringLiteral("Mehmet Kaya");
        f.NeredenGeldigi = QStringLiteral("Deniz Kırtasiye");
        f.BelgeTur = QStringLiteral("Fatura");
        f.BelgeSayi = QStringLiteral("DKR2026001");
        const QStringList satir1 = {"", "150 01 01 001", "A4 Kağıt", "80 GR BEYAZ", "PAKET", "10", "125,50",
                                    "05.03.2026", "", "1", "", "", "1", "20", "", "", ""};
        const QStringList satir2 = {"", "255 01 01 001", "Bilgisayar", "MASAÜSTÜ", "ADET", "2", "18500",
                                    "05.03.2026", "3", "1", "2", "AYŞE DEMİR", "", "20", "OK1", "", ""};
        f.Satirlar = {satir1, satir2};
        return f;
    }

    QVariantMap satir(const QString& kosul, const QVariantList& degerler = {})
    {
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        QSqlQuery q = vt.Sorgu(QStringLiteral("select * from FIS ") + kosul, degerler);
        QVariantMap m;
        if (q.next())
            for (int i = 0; i < q.record().count(); ++i)
                m.insert(q.record().fieldName(i), q.value(i));
        return m;
    }

    int say(const QString& tablo, const QString& kosul = {}, const QVariantList& degerler = {})
    {
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        return int(ToplamAl(vt, tablo, QStringLiteral("1"), kosul, degerler));
    }

    static bool evet() { return true; }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
    }
    void cleanup() { Saat::Ayarla({}); }

    void kaydedilenFisAlanAlanGeriGelir()
    {
        // Save, fetch and delete work on the connections held for the run:
        // none opens a file of its own.
        veri();
        const QStringList baglantilar = QSqlDatabase::connectionNames();
        FisEkrani f = giris();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);

        FisEkrani g;
        g.FisNo = QStringLiteral("5");
        g.FCins = QStringLiteral("G");
        g.CalisYil = QStringLiteral("2026");
        QVERIFY(FisKayit::Getir(veri().Ayniyat(), g));
        QCOMPARE(g.Tarih, f.Tarih);
        QCOMPARE(g.KabulTarih, f.KabulTarih);
        QCOMPARE(g.KabulSayi, f.KabulSayi);
        QCOMPARE(g.TeslimAlan, f.TeslimAlan);
        QCOMPARE(g.NeredenGeldigi, f.NeredenGeldigi);
        QCOMPARE(g.BelgeTur, f.BelgeTur);
        QCOMPARE(g.BelgeSayi, f.BelgeSayi);

        const FisSatirlari s = FisKayit::SatirlariGetir(veri().Ayniyat(), veri().Genel(), QStringLiteral("5"), QStringLiteral("G"),
                                                        QStringLiteral("2026"));
        QCOMPARE(s.hucreler.size(), 2);
        QCOMPARE(s.hucreler[1],
                 (QStringList{"2", "255 01 01 001", "", "MASAÜSTÜ", "ADET", "2", "18500", "05.03.2026", "3", "1",
                              "2", "AYŞE DEMİR", "0", "20", "OK1", "", ""}));
        QCOMPARE(s.hucreler[0].at(FisSutun::AmbarNo), QStringLiteral("1"));
        QCOMPARE(s.islemAdlari, (QStringList{"SatınAlma", "SatınAlma"}));

        const QVariantMap bas = [&] {
            Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
            QSqlQuery q = vt.Sorgu(QStringLiteral("select Ozellik, BelgeTarih, FCins from FIS_B"));
            q.next();
            return QVariantMap{{"Ozellik", q.value(0)}, {"BelgeTarih", q.value(1)}, {"FCins", q.value(2)}};
        }();
        QCOMPARE(bas.value("Ozellik").toString(), QStringLiteral("80 GR BEYAZ"));
        QCOMPARE(bas.value("BelgeTarih").toString(), QStringLiteral("05.03.2026"));
        const QVariantMap ilk = satir(QStringLiteral("where Satir = 1"));
        QCOMPARE(ilk.value("SicilNo").toString(), QStringLiteral("1500101001202650"));
        QCOMPARE(ilk.value("FCinss").toString(), QString());
        QVERIFY(!ilk.value("FCinss").isNull());
        QCOMPARE(ilk.value("BirimFiyat").toString(), QStringLiteral("125,50"));
        QCOMPARE(ilk.value("KabulSayi").toString(), QStringLiteral("12"));
        FisKayit::Sil(veri().Ayniyat(), f);
        QCOMPARE(QSqlDatabase::connectionNames(), baglantilar);
    }

    void numaraTurVeYilIleAyrilir()
    {
        FisEkrani g = giris(QStringLiteral("7"));
        FisEkrani c = giris(QStringLiteral("7"));
        c.FCins = c.Hangi = QStringLiteral("C");
        FisEkrani eski = giris(QStringLiteral("7"));
        eski.Tarih = QStringLiteral("10.03.2025");
        eski.CalisYil = QStringLiteral("2025");
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), c, evet), KayitSonucu::Kaydedildi);
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), eski, evet), KayitSonucu::Kaydedildi);
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), g, evet), KayitSonucu::Kaydedildi);
        g.Satirlar.removeLast();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), g, evet), KayitSonucu::Kaydedildi);
        QCOMPARE(say(QStringLiteral("FIS"), QStringLiteral(" where FCins = 'G' and Mid(Tarih,7,4) = '2026'")), 1);
        QCOMPARE(say(QStringLiteral("FIS"), QStringLiteral(" where FCins = 'C'")), 2);
        QCOMPARE(say(QStringLiteral("FIS"), QStringLiteral(" where Mid(Tarih,7,4) = '2025'")), 2);
        QCOMPARE(say(QStringLiteral("FIS_B")), 3);

        QCOMPARE(FisKayit::EnSon(veri().Ayniyat(), QStringLiteral("G"), QStringLiteral("2026")), 8);
        QCOMPARE(FisKayit::EnSon(veri().Ayniyat(), QStringLiteral("G"), QStringLiteral("2024")), 1);
    }

    void cikisFisiMiktarsizVeBosSatirAraliklidir()
    {
        FisEkrani c = giris();
        c.FCins = c.Hangi = QStringLiteral("C");
        // Row 2 empty: row 3 keeps its number.
        c.Satirlar.insert(1, QStringList());
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), c, evet), KayitSonucu::Kaydedildi);
        QCOMPARE(say(QStringLiteral("FIS")), 2);
        QCOMPARE(satir(QStringLiteral("where Satir = 3")).value("HesapKod").toString(),
                 QStringLiteral("255 01 01 001"));
        QCOMPARE(satir(QStringLiteral("where Satir = 1")).value("Miktar").toString(), QString());
        QCOMPARE(satir(QStringLiteral("where Satir = 3")).value("Cikan").toString(), QStringLiteral("2"));
        const FisSatirlari s = FisKayit::SatirlariGetir(veri().Ayniyat(), veri().Genel(), QStringLiteral("5"), QStringLiteral("C"),
                                                        QStringLiteral("2026"));
        QCOMPARE(s.hucreler.size(), 2);
        QCOMPARE(s.hucreler[1].at(FisSutun::Sira), QStringLiteral("3"));
    }

    void basinVeSatirinTarihYedekleri()
    {
        FisEkrani f = giris();
        f.KabulTarih.clear();
        f.Satirlar[0][FisSutun::BelgeTarih].clear();
        f.Satirlar[1][FisSutun::BelgeTarih].clear();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        // Today's day and month in the working year for the acceptance date;
        // "01.01." + year for the first line; today's whole date for others.
        QCOMPARE(f.KabulTarih, QStringLiteral("14.03.2026"));
        QCOMPARE(f.Hucre(1, FisSutun::BelgeTarih), QStringLiteral("01.01.2026"));
        QCOMPARE(f.Hucre(2, FisSutun::BelgeTarih), QStringLiteral("14.03.2026"));
        QCOMPARE(satir(QStringLiteral("where Satir = 2")).value("BelgeTarih").toString(), QStringLiteral("14.03.2026"));

        // With no price on the first line the head's document date is today
        // in the working year instead.
        Saat::Ayarla(QDate(2027, 3, 20));
        FisEkrani g = giris(QStringLiteral("6"));
        g.Satirlar[0][FisSutun::BirimFiyat].clear();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), g, evet), KayitSonucu::Kaydedildi);
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        QCOMPARE(AlanGetir(vt, QStringLiteral("FIS_B"), QStringLiteral("BelgeTarih"),
                           QStringLiteral(" where FisNo = 6")),
                 QStringLiteral("20.03.2026"));
    }

    void sinirlarVeAyniSinifinSicilNosu()
    {
        FisEkrani f = giris();
        f.Satirlar[1][FisSutun::HesapKod] = QStringLiteral("150 01 01 001");
        f.Satirlar[1][FisSutun::Ozellik] = QString(40, u'Ö');
        f.TeslimAlan = QString(40, u'x');
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        QCOMPARE(satir(QStringLiteral("where Satir = 1")).value("SicilNo"),
                 satir(QStringLiteral("where Satir = 2")).value("SicilNo"));
        QCOMPARE(satir(QStringLiteral("where Satir = 2")).value("Ozellik").toString(), QString(30, u'Ö'));
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        QCOMPARE(AlanGetir(vt, QStringLiteral("FIS_B"), QStringLiteral("Len(TeslimAlan)")), QStringLiteral("32"));
    }

    void yenidenKayitDusumIsaretiniSiler()
    {
        FisEkrani f = giris();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        {
            Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
            vt.Calistir(QStringLiteral("update FIS set FCinss = 'D', KabulSayi = '3', KabulTarih = '01.04.2026' "
                                       "where Satir = 2"));
        }
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        const QVariantMap s = satir(QStringLiteral("where Satir = 2"));
        QCOMPARE(s.value("FCinss").toString(), QString());
        QCOMPARE(s.value("KabulSayi").toString(), QStringLiteral("12"));
        QCOMPARE(s.value("KabulTarih").toString(), QStringLiteral("11.03.2026"));
    }

    void silmeTarihinYiliyla()
    {
        FisEkrani f = giris();
        f.Tarih = QStringLiteral("10.03.2025");
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        // Saved under another year than the working one: the working year
        // cannot fetch it, the delete on the open screen finds it.
        QVERIFY(!FisKayit::Getir(veri().Ayniyat(), f));
        FisKayit::Sil(veri().Ayniyat(), f);
        QCOMPARE(say(QStringLiteral("FIS_B")), 0);
        QCOMPARE(say(QStringLiteral("FIS")), 0);
    }

    void kaydedilmeyenDurumlar()
    {
        FisEkrani f = giris(QStringLiteral("x"));
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::FisNoYok);
        f = giris();
        f.Satirlar[0][FisSutun::HesapKod].clear();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::IlkSatirBos);

        // Another month on the computer: the question decides.
        f = giris();
        f.CalisAy = QStringLiteral("2");
        int soruldu = 0;
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [&] { ++soruldu; return false; }), KayitSonucu::Vazgecildi);
        QCOMPARE(soruldu, 1);
        QCOMPARE(say(QStringLiteral("FIS_B")), 0);
        f.CalisAy = QStringLiteral("03");
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [&] { ++soruldu; return false; }), KayitSonucu::Kaydedildi);
        QCOMPARE(soruldu, 1);
    }

    // A number that is not a whole positive number reaches no voucher:
    // "5a" is not voucher 5, for a save, a fetch or a delete.
    void fisNoYalnizRakam_data()
    {
        QTest::addColumn<QString>("no");
        QTest::newRow("harfli") << QStringLiteral("5a");
        QTest::newRow("ondalık") << QStringLiteral("5.0");
        QTest::newRow("eksi") << QStringLiteral("-5");
        QTest::newRow("taşan") << QStringLiteral("99999999999999999999");
    }

    void fisNoYalnizRakam()
    {
        QFETCH(QString, no);
        FisEkrani f = giris(QStringLiteral(" 5 "));
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        FisEkrani kotu = giris(no);
        kotu.Satirlar.resize(1);
        QVERIFY_THROWS_EXCEPTION(Hata, FisKayit::Kaydet(veri().Ayniyat(), kotu, evet));
        QVERIFY_THROWS_EXCEPTION(Hata, FisKayit::Getir(veri().Ayniyat(), kotu));
        QVERIFY_THROWS_EXCEPTION(Hata, FisKayit::Sil(veri().Ayniyat(), kotu));
        QCOMPARE(say(QStringLiteral("FIS_B")), 1);
        QCOMPARE(say(QStringLiteral("FIS")), 2);
    }

    void yarimKalanKayitEskiFisiBozmaz()
    {
        FisEkrani f = giris();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        {
            Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
            vt.Calistir(QStringLiteral("create trigger bozuk before insert on FIS when NEW.HesapKod = 'HATA' "
                                       "begin select raise(abort, 'deneme'); end"));
        }
        FisEkrani bozuk = giris();
        bozuk.TeslimAlan = QStringLiteral("Başkası");
        bozuk.Satirlar[1][FisSutun::HesapKod] = QStringLiteral("HATA");
        QVERIFY_THROWS_EXCEPTION(VeriHatasi, FisKayit::Kaydet(veri().Ayniyat(), bozuk, evet));
        QCOMPARE(say(QStringLiteral("FIS")), 2);
        QCOMPARE(satir(QStringLiteral("where Satir = 2")).value("HesapKod").toString(),
                 QStringLiteral("255 01 01 001"));
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        QCOMPARE(AlanGetir(vt, QStringLiteral("FIS_B"), QStringLiteral("TeslimAlan")), QStringLiteral("Mehmet Kaya"));
    }

    void temizle()
    {
        FisEkrani f = giris();
        FisKayit::Temizle(f);
        QCOMPARE(f.FisNo, QStringLiteral("5"));
        QCOMPARE(f.Tarih, QStringLiteral("14.03.2026"));
        QCOMPARE(f.KabulTarih, QStringLiteral("14.03.2026"));
        QVERIFY(f.Satirlar.isEmpty() && f.TeslimAlan.isEmpty() && f.BelgeSayi.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstFisKayit)
#include "tst_fis_kayit.moc"
