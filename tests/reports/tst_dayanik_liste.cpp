#include "dayanik_liste.h"
#include "dayanik_liste_kagidi.h"
#include "gecici_veri.h"
#include "rapor_tanimlari.h"
#include "saat.h"
#include "veri.h"
#include "veritabani.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace DayanikListesi;

// The unit lists on a few hand-made lines: units a1 (written first), 3 and
// 9 (no lines); the day is 14.03.2026.
class TstDayanikListe : public QObject, protected GeciciVeri
{
    Q_OBJECT

    struct Satir
    {
        QVariant fisNo;
        QString tarih, kod, unite, miktar, cikan, fcinss = {}, sicil = {}, kime = {}, ozellik = {};
        int satirNo = 1;
    };

    void satir(const Satir& s)
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, FCinss, Satir, HesapKod, Unite, Miktar, "
                                  "Cikan, SicilNo, KimeVerildigi, Ozellik) values (?, ?, 'G', ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
                                  {s.tarih, s.fisNo, s.fcinss, s.satirNo, s.kod, s.unite, s.miktar, s.cikan, s.sicil,
                                   s.kime, s.ozellik});
    }

    QList<RaporSatiri> liste(const QString& hangi, int birim, const QString& malzeme = {})
    {
        RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, u"T"_s);
        if (hangi == u"D")
            s.Tarih = QDate(1900, 1, 1);
        s.TekMalzeme = malzeme;
        const Liste l(veri().Ayniyat(), veri().Genel(), s, hangi, Birimler(veri().Genel()));
        return l.Hesapla(birim).tablo.satirlar;
    }

    static QStringList hucreler(const RaporSatiri& r) { return r.hucreler; }

    static const inline QString masa = u"255 01 01 001"_s, tuketim = u"150 01 01 001"_s;

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        for (const auto& [kod, ad] : {std::pair("a1", "Müdürlük"), std::pair("3", "Fen Bölümü"),
                                      std::pair("9", "Boş Birim")})
            veri().Genel().Calistir(u"insert into Unite_K (UniteKod, UniteAd) values (?, ?)"_s,
                                    {QString::fromUtf8(kod), QString::fromUtf8(ad)});
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values (?, 'MASA'), (?, 'KAĞIT')"_s,
                                {masa, tuketim});
        // Durable lines of unit 3: one on the last day of the range and one
        // the day after, an issue of a class not in the plan, a write-off.
        satir({2, u"31.12.2025"_s, masa, u"3"_s, u"2"_s, {}, {}, u"S-1"_s, u"ALİ"_s, u"AHŞAP"_s});
        satir({1, u"14.03.2026"_s, masa, u"3"_s, u"1,5"_s, {}, {}, {}, {}, u"METAL"_s});
        satir({1, u"15.03.2026"_s, masa, u"3"_s, u"1"_s, {}});
        satir({3, u"01.01.2026"_s, u"255 09 09 009"_s, u"3"_s, {}, u"3"_s});
        satir({3, u"01.01.2026"_s, masa, u"3"_s, u"4"_s, u"4"_s, u"D"_s, {}, {}, {}, 2});
        // Unit a1, its code in other letter case.
        satir({5, u"05.01.2020"_s, masa, u"A1"_s, u"1"_s, {}, {}, u"S-2"_s});
        // Consumables: issued on 02.01, received on 01.01 (marked "D"), one
        // of last year; in a1 an entry only, its Cikan "0".
        satir({4, u"02.01.2026"_s, tuketim, u"3"_s, u"5"_s, u"2"_s, {}, u"S-9"_s, u"VELİ"_s});
        satir({6, u"01.01.2026"_s, tuketim, u"3"_s, u"7"_s, {}, u"D"_s});
        satir({8, u"31.12.2025"_s, tuketim, u"3"_s, u"1"_s, u"1"_s});
        satir({7, u"10.03.2026"_s, tuketim, u"a1"_s, u"3"_s, u"0"_s});
    }
    void cleanup() { Saat::Ayarla({}); }

    void birimlerTabloSirasindaAdlaSecilir()
    {
        QStringList kodlar;
        for (const Birim& b : Birimler(veri().Genel()))
            kodlar << b.UniteKod;
        QCOMPARE(kodlar, (QStringList{"a1", "3", "9"}));
        const QList<Birim> tek = Birimler(veri().Genel(), u" Fen Bölümü "_s);
        QCOMPARE(tek.size(), 1);
        QCOMPARE(tek[0].UniteKod, u"3"_s);
    }

    // "D": what the unit received, write-offs left out, by FisNo; the
    // issue shows its Cikan and adds nothing: 1,5 + 2 = 3,50.
    void dayanikliListe()
    {
        const QList<RaporSatiri> s = liste(u"D"_s, 1);
        QCOMPARE(s.size(), 4);
        QCOMPARE(hucreler(s[0]), (QStringList{"1", "14.03.2026", "1", "MASA", "METAL", "1,5", "", ""}));
        QCOMPARE(hucreler(s[1]), (QStringList{"2", "31.12.2025", "2", "MASA", "AHŞAP", "2", "ALİ", "S-1"}));
        QCOMPARE(hucreler(s[2]), (QStringList{"3", "01.01.2026", "3", "", "", "3", "", ""}));
        QCOMPARE(s[3].tur, SatirTuru::Kapanis);
        QCOMPARE(hucreler(s[3]), (QStringList{"", "", "", "", "Toplam : ", "3,50", "", ""}));

        // The unit written "A1" on the line; the unit with no lines.
        QCOMPARE(hucreler(liste(u"D"_s, 0).value(1)), (QStringList{"", "", "", "", "Toplam : ", "1,00", "", ""}));
        RaporSuzgeci acilis = RaporSuzgecleri::Acilis(u"2026"_s, u"D"_s);
        const Liste l(veri().Ayniyat(), veri().Genel(), acilis, u"D"_s, Birimler(veri().Genel()));
        QVERIFY(!l.Hesapla(2).kayitVar);
        QVERIFY(l.Hesapla(2).tablo.satirlar.isEmpty());
        QCOMPARE(l.Hesapla(1).tablo.baslik,
                 u"Fen Bölümü   -    Dayanıklı Taşınır Liste                    3"_s);

        // One material: the lines of the classes of that name.
        const QList<RaporSatiri> masalar = liste(u"D"_s, 1, u"MASA"_s);
        QCOMPARE(masalar.size(), 3);
        QCOMPARE(masalar[2].hucreler[Miktar], u"3,50"_s);
    }

    // "T": what was issued to the unit, within the working year, a marked
    // line kept, no register numbers; an entry alone makes no closing row.
    void tuketimListesi()
    {
        const QList<RaporSatiri> s = liste(u"T"_s, 1);
        QCOMPARE(s.size(), 3);
        QCOMPARE(hucreler(s[0]), (QStringList{"1", "02.01.2026", "4", "KAĞIT", "", "2", "VELİ", ""}));
        QCOMPARE(hucreler(s[1]), (QStringList{"2", "01.01.2026", "6", "KAĞIT", "", "7", "", ""}));
        QCOMPARE(hucreler(s[2]).mid(Ozellik, 2), (QStringList{"Toplam : ", "2,00"}));
        const QList<RaporSatiri> a1 = liste(u"T"_s, 0);
        QCOMPARE(a1.size(), 1);
        QCOMPARE(a1[0].hucreler[Miktar], u"3"_s);
        QCOMPARE(Sutunlar(u"T"_s)[SicilNo].baslik, u" "_s);
    }

    // Dayanak2: every durable line of every date, write-off included, the
    // quantity read by val: "1,5" is 1.
    void ikinciListe()
    {
        const Liste2 l(veri().Ayniyat(), Birimler(veri().Genel()));
        const Sonuc r = l.Hesapla(1);
        QCOMPARE(r.tablo.baslik, u"Dayanıklık Taşınır Liste"_s);
        QStringList satirlar;
        for (const RaporSatiri& s : r.tablo.satirlar)
            satirlar << s.hucreler[Tarih2] + u'/' + s.hucreler[FisNo2] + u'/' + s.hucreler[Miktar2];
        QCOMPARE(satirlar, (QStringList{"14.03.2026/1/1,00", "15.03.2026/1/1,00", "31.12.2025/2/2,00",
                                        "01.01.2026/3/,00", "01.01.2026/3/4,00"}));
        QCOMPARE(r.tablo.satirlar[2].hucreler.mid(HesapKod2, 3), (QStringList{masa, "AHŞAP", "S-1"}));
        QVERIFY(!l.Hesapla(2).kayitVar);
    }

    // The paper: Sıra counted again (a row without quantity gets none, the
    // closing row one), KimeVerildigi under "Sicil No" at 73, SicilNo at 88.
    void kagit()
    {
        const RaporSuzgeci s = RaporSuzgecleri::Acilis(u"2026"_s, u"T"_s);
        const RaporKagidi d = Kagit(s, u"D"_s);
        QCOMPARE((QList<int>{d.ilkSayac, d.sinir, d.devam}), (QList<int>{8, 46, 5}));
        QCOMPARE(d.ayiricilar.value(0).value(0).metin, QString(106, u'-'));
        QCOMPARE(d.bant(1).value(0).metin, u"01.01.2026 -14.03.2026"_s);
        QCOMPARE(d.basliklar.value(6).metin, u"Sicil No"_s);
        QCOMPARE(Kagit(s, u"T"_s).basliklar.value(6).metin, QString(8, u' '));

        QList<RaporSatiri> satirlar = liste(u"D"_s, 1);
        satirlar.insert(1, {SatirTuru::Kayit, {u"2"_s, u"01.02.2026"_s, u"9"_s}});
        QStringList sira;
        int n = 0;
        for (const RaporSatiri& r : satirlar)
            sira << d.satir(r, n)->value(0).metin;
        QCOMPARE(sira, (QStringList{"1", "", "2", "3", "4"}));
        const KagitSatiri ikinci = *d.satir(satirlar[2], n);
        QList<int> tablar;
        for (const TabMetin& t : ikinci)
            tablar << t.tab;
        QCOMPARE(tablar, (QList<int>{0, 5, 16, 22, 43, 63, 73, 88}));
        QCOMPARE(ikinci[6].metin.trimmed(), u"ALİ"_s);
        QCOMPARE(ikinci[7].metin, u"S-1"_s);
    }

    // The command line: the units with lines, each with its header block.
    void komutSatiri()
    {
        const RaporTanimi* r = RaporTanimlari::Bul(u"dayanik-liste"_s);
        QVERIFY(r);
        QStringList tablolar;
        r->yuru(veri(), RaporSuzgecleri::Acilis(u"2026"_s, u"D"_s), u"D"_s, {}, [&](RaporTablosu&& t) {
            tablolar << t.tasinirKod + u':' + t.ustBilgi.value(2).value(2).metin;
            return true;
        });
        QCOMPARE(tablolar, (QStringList{"a1:  Ölçü Birimi  : ", "3:  Ölçü Birimi  : "}));
        QCOMPARE(RaporTanimlari::Bul(u"birim-tuketim-liste"_s)->hangiler, u"T"_s);
        QVERIFY(RaporTanimlari::Bul(u"dayanik-liste2"_s));
    }
};

QTEST_GUILESS_MAIN(TstDayanikListe)
#include "tst_dayanik_liste.moc"
