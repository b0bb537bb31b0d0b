#include "defter.h"
#include "fis_kayit.h"
#include "gecici_veri.h"
#include "rapor_suzgeci.h"
#include "saat.h"
#include "veritabani.h"
#include "veri.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TstRaporSuzgeci : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static bool evet() { return true; }

    // One line of the class on a voucher of the date, with the store, unit,
    // recipient and description given.
    void fis(const QString& no, const QString& tarih, const QString& ambar = {}, const QString& unite = {},
             const QString& kime = {}, const QString& ozellik = {})
    {
        FisEkrani f;
        f.FisNo = no, f.Tarih = tarih, f.FCins = f.Hangi = u"G"_s, f.CalisYil = tarih.mid(6), f.CalisAy = u"3"_s;
        QStringList s(FisSutun::Sayi);
        s[FisSutun::HesapKod] = u"150 01 01 001"_s, s[FisSutun::Miktar] = u"1"_s, s[FisSutun::AmbarNo] = ambar;
        s[FisSutun::Unite] = unite, s[FisSutun::KimeVerildigi] = kime, s[FisSutun::Ozellik] = ozellik;
        f.Satirlar = {s};
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
    }

    // The voucher numbers of the lines the condition lets through.
    QStringList numaralar(const RaporSuzgeci& s)
    {
        const SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
        QStringList no;
        for (const QStringList& r :
             veri().Ayniyat().Satirlar(u"select FisNo from FIS where "_s + k.sql + u" order by FisNo"_s, k.degerler))
            no << r.at(0);
        return no;
    }

    QStringList kodlar(const RaporSuzgeci& s, const QString& hangi)
    {
        QStringList kod;
        for (const Defter::Sinif& sinif : Defter::Siniflar(veri().Genel(), s, hangi))
            kod << sinif.HesapKod;
        return kod;
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
    }
    void cleanup() { Saat::Ayarla({}); }

    void acilisTarihleriCalismaYilindanVeHangidenGelir()
    {
        using RaporSuzgecleri::Acilis;
        QCOMPARE(Acilis(u"2026"_s, u"T"_s).Tarih, QDate(2026, 1, 1));
        QCOMPARE(Acilis(u"2026"_s, u"T"_s).Tarih1, QDate(2026, 3, 14));
        QCOMPARE(Acilis(u"2025"_s, u"T"_s).Tarih1, QDate(2025, 3, 14));
        QCOMPARE(Acilis(u"2027"_s, u"T"_s).Tarih1, QDate(2027, 12, 31));
        QCOMPARE(Acilis(u"2025"_s, u"D"_s).Tarih, QDate(1900, 1, 1));
        QCOMPARE(Acilis(u"2025"_s, u"D"_s).Tarih1, QDate(2026, 3, 14));
        // 29 February has no day in 2027: the picker keeps the date it
        // opened with.
        Saat::Ayarla(QDate(2028, 2, 29));
        QCOMPARE(Acilis(u"2027"_s, u"T"_s).Tarih1, QDate(2028, 2, 29));
    }

    void tarihlerIlkVeSonGunuKapsar()
    {
        fis(u"1"_s, u"31.12.2025"_s);
        fis(u"2"_s, u"01.01.2026"_s);
        fis(u"3"_s, u"14.03.2026"_s);
        fis(u"4"_s, u"15.03.2026"_s);
        RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, u"T"_s);
        QCOMPARE(numaralar(s), (QStringList{"2", "3"}));
        // A blank end date drops the upper bound.
        s.Tarih1 = QDate();
        QCOMPARE(numaralar(s), (QStringList{"2", "3", "4"}));
    }

    void ambarUniteKimeOzellikSuzer()
    {
        fis(u"1"_s, u"02.03.2026"_s, u"1"_s, u"3"_s, u"ALİ VELİ"_s, u"MAVİ"_s);
        fis(u"2"_s, u"03.03.2026"_s, u"2"_s, u"3"_s, u"AYŞE KAYA"_s, u"MAVİ"_s);
        fis(u"3"_s, u"04.03.2026"_s, u"2"_s, u"4"_s, u"ALİ VELİ"_s, u"YEŞİL"_s);
        RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, u"T"_s);

        for (const QString& hic : {u""_s, u" "_s, u"0"_s}) {
            s.AmbarNo = hic;
            QCOMPARE(numaralar(s), (QStringList{"1", "2", "3"}));
        }
        s.AmbarNo = u"2"_s;
        QCOMPARE(numaralar(s), (QStringList{"2", "3"}));
        s.TumAmbarlar = true;
        QCOMPARE(numaralar(s), (QStringList{"1", "2", "3"}));
        // Not a number: no line, and no failure.
        s.TumAmbarlar = false, s.AmbarNo = u"A2"_s;
        QCOMPARE(numaralar(s), QStringList());

        s.AmbarNo.clear();
        s.Unite = u"3"_s;
        QCOMPARE(numaralar(s), (QStringList{"1", "2"}));
        s.KimeVerildigi = u"ALİ VELİ"_s;
        QCOMPARE(numaralar(s), (QStringList{"1"}));
        s.Unite.clear(), s.Ozellik = u"YEŞİL"_s;
        QCOMPARE(numaralar(s), (QStringList{"3"}));
    }

    void siniflarTarafaVeSuzgeceGoreKodSirasinda()
    {
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi) values "
                                "('255 01 01 001', 'Sandalye', 'ADET'), ('150 02 01 001', 'Toner', 'ADET'), "
                                "('150 01 01 001', 'Kağıt', 'PAKET'), ('253 01 01 001', 'Matkap', 'ADET')"_s);
        RaporSuzgeci s;
        QCOMPARE(kodlar(s, u"T"_s), (QStringList{"150 01 01 001", "150 02 01 001"}));
        QCOMPARE(kodlar(s, u"D"_s), (QStringList{"253 01 01 001", "255 01 01 001"}));
        const QList<Defter::Sinif> siniflar = Defter::Siniflar(veri().Genel(), s, u"T"_s);
        QCOMPARE((QStringList{siniflar[0].MalzAdi, siniflar[0].Birimi}), (QStringList{"Kağıt", "PAKET"}));

        s.TekMalzeme = u" Toner"_s;
        QCOMPARE(kodlar(s, u"T"_s), (QStringList{"150 02 01 001"}));
        s.TekMalzeme.clear(), s.HesapKod5 = u"253"_s, s.HesapKod6 = u"254"_s;
        QCOMPARE(kodlar(s, u"D"_s), (QStringList{"253 01 01 001"}));
        s.HesapKod5.clear(), s.HesapKod6.clear(), s.SonrakiSinif = u"150 01 01 001"_s;
        QCOMPARE(kodlar(s, u"T"_s), (QStringList{"150 02 01 001"}));
    }
};

QTEST_GUILESS_MAIN(TstRaporSuzgeci)
#include "tst_rapor_suzgeci.moc"
