#include "gecici_veri.h"
#include "rapor_tanimlari.h"
#include "veri.h"
#include "yil_sonu_denetimi.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace YilSonuDenetimi;

class TstYilSonuDenetimi : public QObject, protected GeciciVeri
{
    Q_OBJECT

    struct Satir
    {
        QString tarih;
        int no = 1;
        QString cins = u"G"_s;
        int satir = 1;
        QString kod = u"255 01 01 001"_s, sicil = {}, miktar = {}, cikan = {}, fiyat = {};
        QString fcinss = {}, kabulSayi = {}, kabulTarih = {};
    };

    void satir(const Satir& s)
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, Satir, HesapKod, SicilNo, Miktar, Cikan, "
                                  "BirimFiyat, FCinss, KabulSayi, KabulTarih) values (?,?,?,?,?,?,?,?,?,?,?,?)"_s,
                                  {s.tarih, s.no, s.cins, s.satir, s.kod, s.sicil, s.miktar, s.cikan, s.fiyat,
                                   s.fcinss, s.kabulSayi, s.kabulTarih});
    }

    void bas(int no, const QString& tarih, const QString& cins = u"G"_s, const QString& tablo = u"FIS_B"_s)
    {
        veri().Ayniyat().Calistir(u"insert into "_s + tablo + u" (FisNo, Tarih, FCins) values (?, ?, ?)"_s,
                                  {no, tarih, cins});
    }

    // The findings of one check of 2026 as fis, FisNo, Tarih, Satir, HesapKod, aciklama.
    QList<QStringList> bulgular(Denetim d)
    {
        QList<QStringList> sonuc;
        for (const Bulgu& b : Denetle(veri().Ayniyat(), veri().Genel(), u"2026"_s))
            if (b.denetim == d)
                sonuc << QStringList{b.fis, b.FisNo, b.Tarih, b.Satir, b.HesapKod, b.aciklama};
        return sonuc;
    }

private slots:
    void init() { Yenile(); }

    void eksiStokGunSonundaVeYilaDevredende()
    {
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values ('150 01 01 002', 'Kalem')"_s);
        // 1 on the last day of 2025, then an issue of 2 before an entry of 1 on
        // 2 January: the day ends at 0.
        satir({.tarih = u"31.12.2025"_s, .kod = u"150 01 01 001"_s, .miktar = u"1"_s});
        satir({.tarih = u"02.01.2026"_s, .cins = u"C"_s, .kod = u"150 01 01 001"_s, .cikan = u"2"_s});
        satir({.tarih = u"02.01.2026"_s, .kod = u"150 01 01 001"_s, .miktar = u"1"_s});
        satir({.tarih = u"01.01.2026"_s, .kod = u"150 01 01 002"_s, .miktar = u"2"_s, .cikan = u"3"_s});
        satir({.tarih = u"05.01.2026"_s, .kod = u"150 01 01 002"_s, .cikan = u"1"_s});
        satir({.tarih = u"30.06.2025"_s, .kod = u"150 01 01 003"_s, .cikan = u"1,5"_s});
        satir({.tarih = u"01.01.2027"_s, .kod = u"150 01 01 004"_s, .cikan = u"1"_s});
        QCOMPARE(bulgular(EksiStok),
                 (QList<QStringList>{{{}, {}, u"01.01.2026"_s, {}, u"150 01 01 002"_s, u"Stok -1"_s},
                                     {{}, {}, u"01.01.2026"_s, {}, u"150 01 01 003"_s, u"Yıla -1 stokla girdi"_s}}));
        QCOMPARE(Denetle(veri().Ayniyat(), veri().Genel(), u"2026"_s).first().MalzAdi, u"Kalem"_s);
    }

    void fisNumaralarindaBoslukVeTekrar()
    {
        for (int no : {2, 3, 6})
            bas(no, u"02.01.2026"_s);
        bas(3, u"31.12.2026"_s);
        bas(7, u"31.12.2025"_s);
        bas(1, u"01.01.2027"_s);
        bas(1, u"02.01.2026"_s, u"c"_s);
        QCOMPARE(bulgular(FisNumarasi),
                 (QList<QStringList>{{u"G"_s, u"1"_s, {}, {}, {}, u"Eksik numara"_s},
                                     {u"G"_s, u"3"_s, u"02.01.2026"_s, {}, {}, u"2 fiş: 02.01.2026, 31.12.2026"_s},
                                     {u"G"_s, u"4-5"_s, {}, {}, {}, u"2 numara eksik"_s}}));
    }

    void sicilNoEksikYaDaIkiSatirda()
    {
        const QString t = u"10.03.2026"_s;
        satir({.tarih = t});
        satir({.tarih = t, .satir = 2, .sicil = u"X"_s});
        satir({.tarih = t, .satir = 3, .sicil = u"X"_s});
        satir({.tarih = t, .no = 2, .sicil = u"X"_s});
        satir({.tarih = t, .no = 3, .sicil = u"Y"_s});
        satir({.tarih = t, .no = 4, .kod = u"150 01 01 001"_s});
        satir({.tarih = t, .no = 5, .cins = u"C"_s});
        satir({.tarih = u"31.12.2025"_s, .no = 6});
        QCOMPARE(bulgular(SicilNo),
                 (QList<QStringList>{{u"G"_s, u"1"_s, t, u"1"_s, u"255 01 01 001"_s, u"Sicil No yok"_s},
                                     {u"G"_s, u"1"_s, t, u"2,3"_s, u"255 01 01 001"_s,
                                      u"Sicil No X, 3 satırda; ayrıca G 2 satır 1"_s}}));
    }

    void yilDisindaTarihliSatir()
    {
        bas(5, u"31.12.2025"_s);
        bas(6, u"01.01.2026"_s);
        satir({.tarih = u"31.12.2025"_s, .no = 5});
        satir({.tarih = u"01.01.2026"_s, .no = 5, .satir = 2});
        satir({.tarih = u"01.01.2026"_s, .no = 6});
        satir({.tarih = u"31.12.2025"_s, .no = 6, .satir = 2});
        satir({.tarih = u"01.01.2026"_s, .no = 9});
        const QString k = u"255 01 01 001"_s, b = u"Fişin başlığı %1 tarihli"_s;
        QCOMPARE(bulgular(YilDisiSatir),
                 (QList<QStringList>{{u"G"_s, u"6"_s, u"31.12.2025"_s, u"2"_s, k, b.arg(u"01.01.2026"_s)},
                                     {u"G"_s, u"5"_s, u"01.01.2026"_s, u"2"_s, k, b.arg(u"31.12.2025"_s)}}));
    }

    void duzSayiOlmayanMiktarVeFiyat()
    {
        satir({.tarih = u"01.01.2026"_s, .miktar = u"12,5"_s, .cikan = u"1O"_s, .fiyat = u"1 000"_s});
        satir({.tarih = u"01.01.2026"_s, .satir = 2, .miktar = u" 12.5 "_s, .cikan = u"-3"_s, .fiyat = u"7."_s});
        satir({.tarih = u"31.12.2025"_s, .miktar = u"1,5"_s});
        const QStringList yer = {u"G"_s, u"1"_s, u"01.01.2026"_s, u"1"_s, u"255 01 01 001"_s};
        QCOMPARE(bulgular(OkunmayanSayi),
                 (QList<QStringList>{yer + QStringList{u"Miktar \"12,5\": 12 okunur"_s},
                                     yer + QStringList{u"Çıkan \"1O\": 1 okunur"_s},
                                     yer + QStringList{u"BirimFiyat \"1 000\": 1000 okunur"_s}}));
    }

    void dusumIsaretiSatirsizYaDaKayitsiz()
    {
        bas(1, u"14.03.2026"_s, {}, u"DUSUM_B"_s);
        bas(2, u"15.03.2026"_s, {}, u"DUSUM_B"_s);
        // Lines of 2025 marked by write-offs 1 and 3 of 2026 and 1 of 2025.
        for (const auto& [n, no, tarih] : {std::tuple(1, u"1"_s, u"14.03.2026"_s),
                                           std::tuple(2, u"3"_s, u"14.03.2026"_s),
                                           std::tuple(3, u"1"_s, u"31.12.2025"_s)})
            satir({.tarih = u"05.01.2025"_s, .satir = n, .fcinss = u"D"_s, .kabulSayi = no, .kabulTarih = tarih});
        QCOMPARE(bulgular(DusumIsareti),
                 (QList<QStringList>{{u"Düşüm"_s, u"2"_s, u"15.03.2026"_s, {}, {}, u"İşaretlediği satır yok"_s},
                                     {u"G"_s, u"1"_s, u"05.01.2025"_s, u"2"_s, u"255 01 01 001"_s,
                                      u"3 nolu düşüm (14.03.2026) yok"_s}}));
    }

    void tutariYaziylaYazilamayanFis()
    {
        for (const auto& [no, cins] : {std::pair(1, u"G"_s), std::pair(2, u"G"_s), std::pair(1, u"C"_s)})
            bas(no, u"02.01.2026"_s, cins);
        satir({.tarih = u"02.01.2026"_s, .miktar = u"1"_s, .fiyat = u"10.05"_s});
        satir({.tarih = u"02.01.2026"_s, .no = 2, .miktar = u"1"_s, .fiyat = u"10.5"_s});
        satir({.tarih = u"02.01.2026"_s, .cins = u"C"_s, .miktar = u"5"_s, .cikan = u"1"_s, .fiyat = u"0,01"_s});
        const QList<QStringList> b = bulgular(YaziylaTutar);
        QCOMPARE(b.size(), 2);
        QCOMPARE(b[0].mid(0, 3) << b[0][5].left(6), (QStringList{u"C"_s, u"1"_s, u"02.01.2026"_s, u"0,01: "_s}));
        QCOMPARE(b[1].mid(0, 2) << b[1][5].left(7), (QStringList{u"G"_s, u"1"_s, u"10,05: "_s}));
    }

    void raporBaslangicYilininBasliklariIleYazilir()
    {
        bas(2, u"02.01.2025"_s);
        RaporSuzgeci s;
        s.Tarih = QDate(2025, 6, 1);
        QList<RaporSatiri> r;
        RaporTanimlari::Bul(u"yil-sonu-denetimi"_s)->yuru(veri(), s, {}, {}, [&](RaporTablosu&& t) {
            r += t.satirlar;
            return true;
        });
        // A heading per check, saying "yok" or the count; the finding under its own.
        QCOMPARE(r.size(), 8);
        QCOMPARE(r[0].hucreler, QStringList{u"1. Eksiye düşen stok: yok"_s});
        QCOMPARE(r[1].hucreler, QStringList{u"2. Fiş numaralarında boşluk ya da tekrar: 1 bulgu"_s});
        QCOMPARE(r[2].hucreler.at(1), u"1"_s);
    }
};

QTEST_GUILESS_MAIN(TstYilSonuDenetimi)
#include "tst_yil_sonu_denetimi.moc"
