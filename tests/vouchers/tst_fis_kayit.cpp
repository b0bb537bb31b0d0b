#include "fis_kayit.h"
#include "gecici_veri.h"
#include "hata_metni.h"
#include "saat.h"
#include "tek_deger.h"
#include "veritabani.h"
#include "veri.h"

#include <QSqlRecord>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstFisKayit : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static FisEkrani giris(const QString& no = u"5"_s)
    {
        FisEkrani f;
        f.FisNo = no, f.Tarih = u"10.03.2026"_s, f.FCins = f.Hangi = u"G"_s, f.CalisYil = u"2026"_s;
        f.CalisAy = u"3"_s, f.KabulSayi = u"12"_s, f.KabulTarih = u"11.03.2026"_s, f.TeslimAlan = u"Mehmet Kaya"_s;
        f.NeredenGeldigi = u"Deniz Kırtasiye"_s, f.BelgeTur = u"Fatura"_s, f.BelgeSayi = u"DKR2026001"_s;
        f.Satirlar = {{"", "150 01 01 001", "A4 Kağıt", "80 GR BEYAZ", "PAKET", "10", "125,50", "05.03.2026", "",
                       "1", "", "", "1", "20", "", "", ""},
                      {"", "255 01 01 001", "Bilgisayar", "MASAÜSTÜ", "ADET", "2", "18500", "05.03.2026", "3", "1",
                       "2", "AYŞE DEMİR", "", "20", "OK1", "", ""}};
        return f;
    }
    void kaydet(FisEkrani& f) { QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi); }
    static bool evet() { return true; }

    // The fields of the first record of a table that matches.
    QVariantMap kayit(const QString& tablo, const QString& kosul = {})
    {
        QSqlQuery q = veri().Ayniyat().Sorgu(u"select * from "_s + tablo + u' ' + kosul);
        QVariantMap m;
        if (q.next())
            for (int i = 0; i < q.record().count(); ++i)
                m.insert(q.record().fieldName(i), q.value(i));
        return m;
    }
    QString alan(const QString& tablo, const QString& kosul, const QString& ad)
    {
        return kayit(tablo, kosul).value(ad).toString();
    }
    int say(const QString& tablo, const QString& kosul = {})
    {
        return int(ToplamAl(veri().Ayniyat(), tablo, u"1"_s, kosul));
    }

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
        kaydet(f);

        FisEkrani g;
        g.FisNo = u"5"_s, g.FCins = u"G"_s, g.CalisYil = u"2026"_s;
        QVERIFY(FisKayit::Getir(veri().Ayniyat(), g));
        const auto bas = [](const FisEkrani& e) {
            return QStringList{e.Tarih, e.KabulTarih, e.KabulSayi, e.TeslimAlan, e.NeredenGeldigi, e.BelgeTur,
                               e.BelgeSayi};
        };
        QCOMPARE(bas(g), bas(f));

        const FisSatirlari s =
            FisKayit::SatirlariGetir(veri().Ayniyat(), veri().Genel(), u"5"_s, u"G"_s, u"2026"_s);
        QCOMPARE(s.hucreler.size(), 2);
        QCOMPARE(s.hucreler[1], (QStringList{"2", "255 01 01 001", "", "MASAÜSTÜ", "ADET", "2", "18500", "05.03.2026",
                                             "3", "1", "2", "AYŞE DEMİR", "0", "20", "OK1", "", ""}));
        QCOMPARE(s.hucreler[0].at(FisSutun::AmbarNo), u"1"_s);
        QCOMPARE(s.islemAdlari, (QStringList{"SatınAlma", "SatınAlma"}));

        QCOMPARE(alan(u"FIS_B"_s, {}, u"Ozellik"_s), u"80 GR BEYAZ"_s);
        QCOMPARE(alan(u"FIS_B"_s, {}, u"BelgeTarih"_s), u"05.03.2026"_s);
        const QVariantMap ilk = kayit(u"FIS"_s, u"where Satir = 1"_s);
        QCOMPARE(ilk.value("SicilNo").toString(), u"1500101001202650"_s);
        QCOMPARE(ilk.value("FCinss").toString(), QString());
        QVERIFY(!ilk.value("FCinss").isNull());
        QCOMPARE(ilk.value("BirimFiyat").toString(), u"125,50"_s);
        QCOMPARE(ilk.value("KabulSayi").toString(), u"12"_s);
        FisKayit::Sil(veri().Ayniyat(), f);
        QCOMPARE(QSqlDatabase::connectionNames(), baglantilar);
    }

    // Number, kind and year keep vouchers apart. A second save replaces the
    // lines, a write-off mark and an old acceptance with them. An issue
    // saves no quantity in; an empty row leaves its number unused.
    void numaraTurVeYilIleAyrilir()
    {
        FisEkrani g = giris(u"7"_s);
        FisEkrani c = giris(u"7"_s);
        c.FCins = c.Hangi = u"C"_s;
        c.Satirlar.insert(1, QStringList());
        FisEkrani eski = giris(u"7"_s);
        eski.Tarih = u"10.03.2025"_s, eski.CalisYil = u"2025"_s;
        kaydet(c);
        kaydet(eski);
        kaydet(g);
        const QString gIlk = u"where FCins = 'G' and Mid(Tarih,7,4) = '2026' and Satir = 1"_s;
        veri().Ayniyat().Calistir(u"update FIS set FCinss = 'D', KabulSayi = '3', KabulTarih = '01.04.2026' "_s + gIlk);
        g.Satirlar.removeLast();
        kaydet(g);
        QCOMPARE(say(u"FIS"_s, u" where FCins = 'G' and Mid(Tarih,7,4) = '2026'"_s), 1);
        QCOMPARE(say(u"FIS"_s, u" where FCins = 'C'"_s), 2);
        QCOMPARE(say(u"FIS"_s, u" where Mid(Tarih,7,4) = '2025'"_s), 2);
        QCOMPARE(say(u"FIS_B"_s), 3);
        const QVariantMap yeni = kayit(u"FIS"_s, gIlk);
        QCOMPARE(yeni.value("FCinss").toString(), QString());
        QCOMPARE(yeni.value("KabulSayi").toString(), u"12"_s);
        QCOMPARE(yeni.value("KabulTarih").toString(), u"11.03.2026"_s);

        QCOMPARE(alan(u"FIS"_s, u"where FCins = 'C' and Satir = 3"_s, u"HesapKod"_s), u"255 01 01 001"_s);
        QCOMPARE(alan(u"FIS"_s, u"where FCins = 'C' and Satir = 3"_s, u"Cikan"_s), u"2"_s);
        QCOMPARE(alan(u"FIS"_s, u"where FCins = 'C' and Satir = 1"_s, u"Miktar"_s), QString());
        const FisSatirlari s =
            FisKayit::SatirlariGetir(veri().Ayniyat(), veri().Genel(), u"7"_s, u"C"_s, u"2026"_s);
        QCOMPARE(s.hucreler.size(), 2);
        QCOMPARE(s.hucreler[1].at(FisSutun::Sira), u"3"_s);

        QCOMPARE(FisKayit::EnSon(veri().Ayniyat(), u"G"_s, u"2026"_s), 8);
        QCOMPARE(FisKayit::EnSon(veri().Ayniyat(), u"G"_s, u"2024"_s), 1);
    }

    void basinVeSatirinTarihYedekleri()
    {
        FisEkrani f = giris();
        f.KabulTarih.clear();
        f.Satirlar[0][FisSutun::BelgeTarih].clear();
        f.Satirlar[1][FisSutun::BelgeTarih].clear();
        kaydet(f);
        // Today's day and month in the working year for the acceptance date;
        // "01.01." + year for the first line; today's whole date for others.
        QCOMPARE(f.KabulTarih, u"14.03.2026"_s);
        QCOMPARE(f.Hucre(1, FisSutun::BelgeTarih), u"01.01.2026"_s);
        QCOMPARE(f.Hucre(2, FisSutun::BelgeTarih), u"14.03.2026"_s);
        QCOMPARE(alan(u"FIS"_s, u"where Satir = 2"_s, u"BelgeTarih"_s), u"14.03.2026"_s);

        // With no price on the first line the head's document date is today
        // in the working year instead.
        Saat::Ayarla(QDate(2027, 3, 20));
        FisEkrani g = giris(u"6"_s);
        g.Satirlar[0][FisSutun::BirimFiyat].clear();
        kaydet(g);
        QCOMPARE(alan(u"FIS_B"_s, u"where FisNo = 6"_s, u"BelgeTarih"_s), u"20.03.2026"_s);
    }

    void sinirlarVeAyniSinifinSicilNosu()
    {
        FisEkrani f = giris();
        f.Satirlar[1][FisSutun::HesapKod] = u"150 01 01 001"_s;
        f.Satirlar[1][FisSutun::Ozellik] = QString(40, u'Ö');
        f.TeslimAlan = QString(40, u'x');
        kaydet(f);
        QCOMPARE(alan(u"FIS"_s, u"where Satir = 1"_s, u"SicilNo"_s),
                 alan(u"FIS"_s, u"where Satir = 2"_s, u"SicilNo"_s));
        QCOMPARE(alan(u"FIS"_s, u"where Satir = 2"_s, u"Ozellik"_s), QString(30, u'Ö'));
        QCOMPARE(AlanGetir(veri().Ayniyat(), u"FIS_B"_s, u"Len(TeslimAlan)"_s), u"32"_s);
    }

    // Saved under another year than the working one: the working year
    // cannot fetch it, the delete on the open screen finds it. The screen
    // then clears all but the number: the voucher dated today in the working
    // year, the acceptance today.
    void silmeTarihinYiliylaVeTemizleme()
    {
        FisEkrani f = giris();
        f.Tarih = u"10.03.2025"_s;
        kaydet(f);
        QVERIFY(!FisKayit::Getir(veri().Ayniyat(), f));
        FisKayit::Sil(veri().Ayniyat(), f);
        QCOMPARE(say(u"FIS_B"_s), 0);
        QCOMPARE(say(u"FIS"_s), 0);

        Saat::Ayarla(QDate(2027, 3, 20));
        FisKayit::Temizle(f);
        QCOMPARE(f.FisNo, u"5"_s);
        QCOMPARE(f.Tarih, u"20.03.2026"_s);
        QCOMPARE(f.KabulTarih, u"20.03.2027"_s);
        QVERIFY(f.Satirlar.isEmpty() && f.TeslimAlan.isEmpty() && f.BelgeSayi.isEmpty());
    }

    void kaydedilmeyenDurumlar()
    {
        FisEkrani f = giris(u"x"_s);
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::FisNoYok);
        f = giris();
        f.Satirlar[0][FisSutun::HesapKod].clear();
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::IlkSatirBos);

        // Another month on the computer: the question decides.
        f = giris();
        f.CalisAy = u"2"_s;
        int soruldu = 0;
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [&] { ++soruldu; return false; }), KayitSonucu::Vazgecildi);
        QCOMPARE(soruldu, 1);
        QCOMPARE(say(u"FIS_B"_s), 0);
        f.CalisAy = u"03"_s;
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [&] { ++soruldu; return false; }), KayitSonucu::Kaydedildi);
        QCOMPARE(soruldu, 1);
    }

    // A number that is not a whole positive number reaches no voucher:
    // "5a" is not voucher 5, for a save, a fetch or a delete.
    void fisNoYalnizRakam_data()
    {
        QTest::addColumn<QString>("no");
        QTest::newRow("harfli") << u"5a"_s;
        QTest::newRow("ondalık") << u"5.0"_s;
        QTest::newRow("eksi") << u"-5"_s;
        QTest::newRow("taşan") << u"99999999999999999999"_s;
    }
    void fisNoYalnizRakam()
    {
        QFETCH(QString, no);
        FisEkrani f = giris(u" 5 "_s);
        kaydet(f);
        FisEkrani kotu = giris(no);
        kotu.Satirlar.resize(1);
        const QString hata = u"\"%1\" bir fiş numarası değil. Fiş numarası yalnız rakamlardan oluşan, sıfırdan büyük "
                             "bir sayıdır; hiçbir şey yazılmadı."_s.arg(no);
        QCOMPARE(HataMetni([&] { FisKayit::Kaydet(veri().Ayniyat(), kotu, evet); }), hata);
        QCOMPARE(HataMetni([&] { FisKayit::Getir(veri().Ayniyat(), kotu); }), hata);
        QCOMPARE(HataMetni([&] { FisKayit::Sil(veri().Ayniyat(), kotu); }), hata);
        QCOMPARE(say(u"FIS_B"_s), 1);
        QCOMPARE(say(u"FIS"_s), 2);
    }

    void yarimKalanKayitEskiFisiBozmaz()
    {
        FisEkrani f = giris();
        kaydet(f);
        veri().Ayniyat().Calistir(u"create trigger bozuk before insert on FIS when NEW.HesapKod = 'HATA' "
                                  "begin select raise(abort, 'deneme'); end"_s);
        FisEkrani bozuk = giris();
        bozuk.TeslimAlan = u"Başkası"_s;
        bozuk.Satirlar[1][FisSutun::HesapKod] = u"HATA"_s;
        QVERIFY_THROWS_EXCEPTION(VeriHatasi, FisKayit::Kaydet(veri().Ayniyat(), bozuk, evet));
        QCOMPARE(say(u"FIS"_s), 2);
        QCOMPARE(alan(u"FIS"_s, u"where Satir = 2"_s, u"HesapKod"_s), u"255 01 01 001"_s);
        QCOMPARE(alan(u"FIS_B"_s, {}, u"TeslimAlan"_s), u"Mehmet Kaya"_s);
    }
};

QTEST_GUILESS_MAIN(TstFisKayit)
#include "tst_fis_kayit.moc"
