#include "bicim.h"
#include "defter.h"
#include "dusum_kayit.h"
#include "fis_kayit.h"
#include "gecici_veri.h"
#include "saat.h"
#include "veritabani.h"
#include "veri.h"

#include <QtTest>

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;
using namespace Defter;

class TstDefter : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static bool evet() { return true; }

    struct Satir
    {
        QString kod = {}, miktar = {}, fiyat = {}, cikan = {}, kdv = {}, islem = {}, unite = {}, kime = {};
    };

    void fis(const QString& no, const QString& tarih, const QString& cins, const QList<Satir>& satirlar)
    {
        FisEkrani f;
        f.FisNo = no, f.Tarih = tarih, f.FCins = f.Hangi = cins, f.CalisYil = tarih.mid(6), f.CalisAy = u"3"_s;
        for (const Satir& s : satirlar) {
            QStringList h(FisSutun::Sayi);
            h[FisSutun::HesapKod] = s.kod, h[FisSutun::Miktar] = s.miktar, h[FisSutun::BirimFiyat] = s.fiyat;
            h[FisSutun::Cikan] = s.cikan, h[FisSutun::KDV] = s.kdv, h[FisSutun::IslemTur] = s.islem;
            h[FisSutun::Unite] = s.unite, h[FisSutun::KimeVerildigi] = s.kime, h[FisSutun::Ozellik] = u"OK"_s;
            f.Satirlar << h;
        }
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
    }

    Sonuc defter(const QString& hangi, const QString& kod, bool kdvEkle = false)
    {
        const RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, hangi);
        return Hesapla(veri().Ayniyat(), veri().Genel(), s, hangi, kdvEkle, {kod, u"Ad"_s, u"ADET"_s});
    }

    void sinif(const QString& kod)
    {
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi) values (?, ?, 'ADET')"_s,
                                {kod, u"Ad "_s + kod});
    }

    // A line written straight into FIS, as transferred data can hold it.
    void satir(const QVariant& fisNo, const QString& tarih, int satirNo, const QString& kod, const QString& miktar,
               const QString& cikan, const QString& fcinss = {})
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, FCinss, Satir, HesapKod, Miktar, Cikan, "
                                  "BirimFiyat, KDV, IslemTur, Unite, Ozellik) values (?, ?, 'G', ?, ?, ?, ?, ?, "
                                  "'2,5', 18, 1, '3', 'EL')"_s,
                                  {tarih, fisNo, fcinss, satirNo, kod, miktar, cikan});
    }

    // Writes off line 2 of voucher 10 of 05.01.2020 whole (2 pieces).
    void dusum(const QString& kod)
    {
        DusumEkrani d;
        d.FisNo = u"1"_s, d.Tarih = u"14.03.2026"_s, d.CalisYil = u"2026"_s, d.CalisAy = u"3"_s;
        QStringList s(DusumSutun::Sayi);
        s[DusumSutun::HesapKod] = kod, s[DusumSutun::Miktar] = u"2"_s, s[DusumSutun::Tarih] = u"05.01.2020"_s;
        s[DusumSutun::FisNo] = u"10"_s, s[DusumSutun::Satir] = u"2"_s;
        d.Satirlar = {s};
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), d, evet), DusumSonucu::Kaydedildi);
    }

    static void ayniMi(const Sonuc& a, const Sonuc& b)
    {
        QCOMPARE(a.kayitVar, b.kayitVar);
        QCOMPARE(a.tablo.baslik, b.tablo.baslik);
        QCOMPARE(a.tablo.satirlar.size(), b.tablo.satirlar.size());
        for (qsizetype i = 0; i < a.tablo.satirlar.size(); ++i) {
            QCOMPARE(a.tablo.satirlar[i].tur, b.tablo.satirlar[i].tur);
            QCOMPARE(a.tablo.satirlar[i].hucreler, b.tablo.satirlar[i].hucreler);
        }
    }

    // The cells of a row, from..to inclusive.
    static QStringList hucreler(const RaporSatiri& r, int ilk, int son)
    {
        return r.hucreler.mid(ilk, son - ilk + 1);
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        veri().Genel().Calistir(u"insert into Unite_K (UniteKod, UniteAd) values ('3', 'Fen Bölümü')"_s);
    }
    void cleanup() { Saat::Ayarla({}); }

    void tuketimSolUcSagIkiBasamakYuvarlanirToplamlarYuvarlanmamistan()
    {
        const QString k = u"150 01 01 001"_s;
        fis(u"1"_s, u"31.12.2025"_s, u"G"_s, {{k, u"5"_s, u"1"_s}});
        // 7 x 0,14355 = 1,00485: 1,005 to three places, which shows as 1,01;
        // on the right 1,00. A number under 1 shows no leading 0. A line without quantities gives no row.
        fis(u"2"_s, u"01.01.2026"_s, u"G"_s, {{k, u"7"_s, u"0,14355"_s, {}, {}, u"1"_s}, {k}});
        // Three issues of 0,334 show 0,33 each; their sum is 1,002.
        const Satir c1{k, {}, u"0,14355"_s, u"7"_s, {}, u"10"_s, u"3"_s, u"ALİ VELİ"_s};
        const Satir c2{k, {}, u"0,334"_s, u"1"_s};
        fis(u"3"_s, u"14.03.2026"_s, u"C"_s, {c1, c2, c2, c2});
        fis(u"4"_s, u"15.03.2026"_s, u"C"_s, {c2});

        const Sonuc d = defter(u"T"_s, k);
        QVERIFY(d.kayitVar);
        QCOMPARE(d.tablo.satirlar.size(), 6);
        const RaporSatiri& giris = d.tablo.satirlar[0];
        QCOMPARE(hucreler(giris, SolSira, SolTutar),
                 (QStringList{"1", "01.01.2026", "2", "SatınAlma", "7,00", ",14", "1,01"}));
        QCOMPARE(hucreler(giris, SagSira, Tur).join(QString()), u"OK"_s);

        const RaporSatiri& cikis = d.tablo.satirlar[1];
        QCOMPARE(hucreler(cikis, SolSira, SolTutar).join(QString()), QString());
        QCOMPARE(hucreler(cikis, SagSira, Tur), (QStringList{"1", "14.03.2026", "3", "Fen Bölümü", "7,00", ",14",
                                                              "1,00", "ALİ VELİ", "OK", "Tüketim"}));
        QCOMPARE(hucreler(d.tablo.satirlar[4], SagSira, SagTutar),
                 (QStringList{"4", "14.03.2026", "3", "", "1,00", ",33", ",33"}));

        // Sums of the products before rounding: 1,00485 on the left, 2,00685
        // on the right.
        const RaporSatiri& kapanis = d.tablo.satirlar[5];
        QCOMPARE(kapanis.tur, SatirTuru::Kapanis);
        QCOMPARE(hucreler(kapanis, IslemTur, SolTutar), (QStringList{"SüreGelen", "7,00", "", "1,00"}));
        QCOMPARE(hucreler(kapanis, UniteAd, SagTutar), (QStringList{"SüreGelen", "10,00", "", "2,01"}));
        QCOMPARE(kapanis.hucreler[SolSira] + kapanis.hucreler[SagSira], QString());
    }

    void ekleKdvyiFiyataKatarSagdaFiyatIkiBasamak()
    {
        const QString k = u"150 01 02 001"_s;
        // 10,05 with 18 % is 11,859: x 10 gives 118,59 on the left; rounded
        // to 11,86 first on the right, 118,60.
        fis(u"5"_s, u"10.03.2026"_s, u"G"_s, {{k, u"10"_s, u"10,05"_s, u"10"_s, u"18"_s}});

        const Sonuc ekle = defter(u"T"_s, k, true);
        const RaporSatiri& r = ekle.tablo.satirlar[0];
        QCOMPARE((QStringList{r.hucreler[SolFiyat], r.hucreler[SolTutar], r.hucreler[SagFiyat], r.hucreler[SagTutar]}),
                 (QStringList{"11,86", "118,59", "11,86", "118,60"}));
        const RaporSatiri& kapanis = ekle.tablo.satirlar[1];
        QCOMPARE((QStringList{kapanis.hucreler[SolTutar], kapanis.hucreler[SagTutar]}),
                 (QStringList{"118,59", "118,60"}));

        const Sonuc ekleme = defter(u"T"_s, k, false);
        const RaporSatiri& e = ekleme.tablo.satirlar[0];
        QCOMPARE((QStringList{e.hucreler[SolFiyat], e.hucreler[SolTutar], e.hucreler[SagFiyat], e.hucreler[SagTutar]}),
                 (QStringList{"10,05", "100,50", "10,05", "100,50"}));
    }

    void satirsizSinifKapanisSatiriAlmaz()
    {
        const QString k = u"150 01 03 001"_s;
        QVERIFY(!defter(u"T"_s, k).kayitVar);
        fis(u"6"_s, u"10.03.2026"_s, u"G"_s, {{k}});
        const Sonuc d = defter(u"T"_s, k);
        QVERIFY(d.kayitVar);
        QVERIFY(d.tablo.satirlar.isEmpty());
    }

    void dayanikliDusumVeYalnizCikisSatirlari()
    {
        const QString k = u"255 01 01 001"_s;
        fis(u"10"_s, u"05.01.2020"_s, u"G"_s, {{k, u"4"_s, u"100"_s, {}, {}, u"1"_s}, {k, u"2"_s, u"50"_s}});
        // Line 2 written off whole: Cikan 2, FCinss "D".
        dusum(k);
        // An issue without an entry; then a line without quantities, which
        // writes its left half over the row before it.
        fis(u"11"_s, u"10.02.2026"_s, u"C"_s,
            {{k, {}, u"100"_s, u"1"_s, {}, u"10"_s, u"3"_s, u"AYŞE"_s}, {k, {}, u"70"_s}});
        fis(u"12"_s, u"15.03.2026"_s, u"G"_s, {{k, u"9"_s, u"1"_s}});

        const Sonuc sonuc = defter(u"D"_s, k);
        const QList<RaporSatiri>& s = sonuc.tablo.satirlar;
        QCOMPARE(s.size(), 4);
        QCOMPARE(hucreler(s[0], SolSira, SolTutar),
                 (QStringList{"1", "05.01.2020", "10", "SatınAlma", "4,00", "100,00", "400,00"}));

        // The write-off line stands only on the right, twice numbered.
        QCOMPARE(hucreler(s[1], SolSira, SolTutar).join(QString()), QString());
        QCOMPARE(hucreler(s[1], SagSira, Tur), (QStringList{"2", "05.01.2020", "10", "", "2,00", "50,00", "100,00",
                                                             "", "OK", "Düşüm"}));

        // The issue shows its quantity on the left too; the left half is
        // then that of the line without quantities, numbered 3.
        QCOMPARE(hucreler(s[2], SolSira, SolFisNo), (QStringList{"3", "10.02.2026", "11"}));
        QCOMPARE(hucreler(s[2], SolMiktar, SolTutar), (QStringList{",00", "70,00", ",00"}));
        QCOMPARE(hucreler(s[2], SagSira, Tur), (QStringList{"3", "10.02.2026", "11", "Fen Bölümü", "1,00", "100,00",
                                                             "100,00", "AYŞE", "OK", "Tüketim"}));

        // Left: quantity 4 (the issue adds value only), amount 400 + 100.
        // Right: 2 + 1, 100 + 100; the second write-off half adds nothing.
        QCOMPARE(hucreler(s[3], IslemTur, SolTutar), (QStringList{"SüreGelen", "4,00", "", "500,00"}));
        QCOMPARE(hucreler(s[3], UniteAd, SagTutar), (QStringList{"SüreGelen", "3,00", "", "200,00"}));
    }

    void dayanikliYalnizCikisSolaMiktariylaGecer()
    {
        const QString k = u"255 02 01 001"_s;
        fis(u"20"_s, u"01.03.2026"_s, u"C"_s, {{k, {}, u"12,5"_s, u"3"_s}});
        const RaporSatiri r = defter(u"D"_s, k).tablo.satirlar.first();
        QCOMPARE(hucreler(r, SolMiktar, SolTutar), (QStringList{"3,00", "12,50", "37,50"}));
        QCOMPARE(hucreler(r, SagMiktar, SagTutar), (QStringList{"3,00", "12,50", "37,50"}));
        // The consumables ledger leaves such a line's left half empty.
        QCOMPARE(hucreler(defter(u"T"_s, k).tablo.satirlar.first(), SolSira, SolTutar).join(QString()), QString());
    }

    // The walk over every class gives what each class gives alone: lines
    // saved out of order, numbers and texts in FisNo, one-digit dates, ties
    // in the three keys, a code in other letter case, a class without lines.
    void hepsiSinifSinifHesaplaIleAyni()
    {
        const QString t1 = u"150 01 01 001"_s, t2 = u"150 01 02 001"_s, t3 = u"150 01 03 001"_s;
        const QString d1 = u"255 01 01 001"_s, d2 = u"255 AB 01 001"_s;
        for (const QString& k : {t3, t1, t2, d2, d1})
            sinif(k);
        fis(u"9"_s, u"01.02.2026"_s, u"C"_s, {{t1, {}, u"3"_s, u"2"_s, u"18"_s, u"10"_s, u"3"_s, u"ALİ"_s}});
        fis(u"2"_s, u"02.03.2026"_s, u"G"_s, {{t1, u"5"_s, u"3,3"_s, {}, u"18"_s, u"1"_s}, {t3, u"1"_s, u"7"_s}});
        fis(u"10"_s, u"05.01.2020"_s, u"G"_s, {{d1, u"4"_s, u"100"_s, {}, {}, u"1"_s}, {d1, u"2"_s, u"50"_s}});
        dusum(d1);
        satir(u"A7"_s, u"5.3.2026"_s, 1, u"255 ab 01 001"_s, u"1"_s, {});
        satir(7, u"05.03.2026"_s, 2, d2, {}, u"1"_s);
        satir(7, u"05.03.2026"_s, 2, d2, u"2"_s, {});
        satir(2.5, u"04.03.2026"_s, 1, d2, u"1"_s, {});
        satir(7, u"05.03.2026"_s, 1, d2, u"3"_s, u"1"_s, u"D"_s);
        satir(7, u"10.01.2026"_s, 1, d2, u"5"_s, {});

        for (const QString& hangi : {u"T"_s, u"D"_s})
            for (const bool kdvEkle : {false, true}) {
                const RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, hangi);
                QList<std::pair<Sinif, Sonuc>> hepsi;
                Hepsi(veri().Ayniyat(), veri().Genel(), s, hangi, kdvEkle, [&](const Sinif& sinif, Sonuc&& r) {
                    hepsi.append({sinif, std::move(r)});
                    return true;
                });
                QStringList kodlar, beklenen;
                for (const auto& [sinif, r] : hepsi) {
                    kodlar << sinif.HesapKod;
                    ayniMi(r, Hesapla(veri().Ayniyat(), veri().Genel(), s, hangi, kdvEkle, sinif));
                    QCOMPARE(r.kayitVar, sinif.HesapKod != t2);
                }
                for (const Sinif& sinif : Siniflar(veri().Genel(), s, hangi))
                    beklenen << sinif.HesapKod;
                QCOMPARE(kodlar, beklenen);
            }

        // Numbers before texts in FisNo, dates as texts, the lines of one
        // voucher by Satir, a tie in the order the lines were written.
        const RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, u"D"_s);
        const Sonuc r = Hesapla(veri().Ayniyat(), veri().Genel(), s, u"D"_s, false, {d2, {}, {}});
        QStringList fisler;
        for (const RaporSatiri& satir : r.tablo.satirlar)
            fisler << satir.hucreler[SolFisNo] + u'/' + satir.hucreler[SagFisNo] + u'/' + satir.hucreler[SolMiktar];
        QCOMPARE(fisler, (QStringList{"2.5//1,00", "/7/", "7/7/1,00", "7//2,00", "7//5,00", "A7//1,00", "//9,00"}));

        // Esc after the first class stops the walk.
        int cagri = 0;
        Hepsi(veri().Ayniyat(), veri().Genel(), s, u"D"_s, false, [&](const Sinif&, Sonuc&&) { return ++cagri > 5; });
        QCOMPARE(cagri, 1);
    }

    // The cells' figures agree with Format under both patterns of the
    // ledger: half up at the second decimal of the fifteen digit form.
    void miktarBicimiFormatIleAyni()
    {
        QList<double> sayilar = {0.0, -0.0, 0.005, 0.004999999, -0.005, -0.001, 0.015, 1.005, 999.995, 999.994999,
                                 -999.995, 1e6, 999999.995, 12345678.9, 99999999.995, 123456789012.345, 1e15,
                                 -1e15, 9.99999999999999e20, 1.7e308, 1e-300, 0.1 + 0.2, 1.0 / 3};
        std::mt19937_64 zar(2026);
        for (int i = 0; i < 3000; ++i) {
            const double kesir = double(qint64(zar() % 200000000) - 100000000) / 1000;
            sayilar << kesir << kesir * 0.14355 << std::ldexp(double(zar() % 1000000), int(zar() % 80) - 40);
        }
        for (const double x : sayilar) {
            QCOMPARE(MiktarBicimi(x), Format(x, u"#####,###.#0"_s));
            QCOMPARE(MiktarBicimi(x), Format(x, u"##,###,###.#0"_s));
        }
        QCOMPARE(MiktarBicimi(999.995), u"1.000,00"_s);
        QCOMPARE(MiktarBicimi(-0.001), u"-,00"_s);
    }
};

QTEST_GUILESS_MAIN(TstDefter)
#include "tst_defter.moc"
