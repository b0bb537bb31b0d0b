#include "cikti.h"
#include "gecici_veri.h"
#include "rapor_belgesi.h"
#include "rapor_tanimlari.h"
#include "saat.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_kagidi.h"
#include "veri.h"
#include "veritabani.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace SayimTutanagi;

// The count minutes on small hand-made data: the book stock of each class,
// the rows and the closing row, the paper.
class TstSayimTutanak : public QObject, protected GeciciVeri
{
    Q_OBJECT

    void sinif(const QString& kod, const QString& ad)
    {
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi) values (?, ?, 'ADET')"_s, {kod, ad});
    }

    // A line written straight into FIS.
    void satir(int fisNo, const QString& tarih, const QString& kod, const QString& miktar, const QString& cikan,
               const QString& fcinss = {}, int ambar = 1)
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, FCinss, Satir, HesapKod, Miktar, Cikan, "
                                  "AmbarNo) values (?, ?, 'G', ?, 1, ?, ?, ?, ?)"_s,
                                  {tarih, fisNo, fcinss, kod, miktar, cikan, ambar});
    }

    static RaporSuzgeci yil2026()
    {
        RaporSuzgeci s;
        s.Tarih = QDate(2026, 1, 1), s.Tarih1 = QDate(2026, 12, 31);
        return s;
    }

    // Code and stock of each row, and the closing row's cells 3 to 6.
    QStringList stoklar(const RaporSuzgeci& s)
    {
        const RaporTablosu t = Tablo(veri().Ayniyat(), veri().Genel(), s);
        QStringList l;
        for (const RaporSatiri& r : t.satirlar) {
            if (r.tur == SatirTuru::Kapanis) {
                l << r.hucreler.mid(Birimi, 4).join(u'|');
                continue;
            }
            // The stock stands in four cells, the committee's stay empty.
            [&] {
                QCOMPARE(r.hucreler.size(), int(HucreSayisi));
                QCOMPARE(r.hucreler.mid(Kayitlara, 4), QStringList(4, r.hucreler[Kayitlara]));
                QCOMPARE(r.hucreler.mid(Kisilere).join(QString()) + r.hucreler[Sira], QString());
            }();
            l << r.hucreler[HesapKod] + u'=' + r.hucreler[Kayitlara];
        }
        return l;
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
    }
    void cleanup() { Saat::Ayarla({}); }

    // K = G - T - D: what entered, less what a consumable class issued, less
    // what was written off. A durable issue to a person does not lower it;
    // a consumable line written off counts twice. The range's first and
    // last days count, the days outside do not.
    void stokGirenEksiTuketilenEksiDusulen()
    {
        const QString kagit = u"150 01 01 001"_s, kalem = u"150 01 01 002"_s, silgi = u"150 01 01 003"_s;
        const QString masa = u"255 01 01 001"_s, dolap = u"255 01 01 002"_s;
        for (const QString& k : {kagit, kalem, silgi, masa, dolap})
            sinif(k, u"Ad "_s + k);
        // KAĞIT: 10 + 2,5 in, 3 used: 9,5. The lines of 31.12.2025 and
        // 01.01.2027 stand outside.
        satir(1, u"01.01.2026"_s, kagit, u"10"_s, {});
        satir(2, u"31.12.2026"_s, kagit, u"2,5"_s, u"3"_s);
        satir(3, u"31.12.2025"_s, kagit, u"100"_s, {});
        satir(4, u"01.01.2027"_s, kagit, {}, u"100"_s);
        // KALEM: 4 in, 1 written off: 4 - 1 - 1 = 2.
        satir(5, u"02.01.2026"_s, kalem, u"4"_s, {});
        satir(6, u"03.01.2026"_s, kalem, {}, u"1"_s, u"D"_s);
        // SİLGİ: 3 in, 3 used: a row with 0.
        satir(7, u"02.01.2026"_s, silgi, u"3"_s, u"3"_s);
        // MASA: 5 in; 2 handed out and 1 marked "d" stay; 1 written off: 4.
        satir(8, u"02.01.2026"_s, masa, u"5"_s, u"2"_s);
        satir(9, u"05.01.2026"_s, masa, {}, u"1"_s, u"d"_s);
        satir(10, u"06.01.2026"_s, masa, {}, u"1"_s, u"D"_s);
        // DOLAP has no line in the period: no row. The general sums show
        // zero's format whatever the figures.
        satir(11, u"31.12.2025"_s, dolap, u"7"_s, {});
        QCOMPARE(stoklar(yil2026()), (QStringList{kagit + u"=9,5"_s, kalem + u"=2"_s, silgi + u"=0"_s,
                                                    masa + u"=4"_s, u"GenelToplam|,00||,00"_s}));

        // Store 2 only: KAĞIT's 7 and nothing else.
        satir(12, u"04.01.2026"_s, kagit, u"7"_s, {}, {}, 2);
        RaporSuzgeci s = yil2026();
        s.AmbarNo = u"2"_s;
        QCOMPARE(stoklar(s), (QStringList{kagit + u"=7"_s, u"GenelToplam|,00||,00"_s}));

        // The header block names the last class of the walk, with or without lines.
        const RaporTablosu t = Tablo(veri().Ayniyat(), veri().Genel(), s);
        QCOMPARE(t.tasinirKod + t.tasinirAdi, dolap + u"Ad "_s + dolap);
    }

    // The sums run in the order of the vouchers (FisNo), as the lines were
    // read: 0,1 + 0,2 + 0,3 is 0,6000000000000001, less 0,6 leaves
    // 1,1102230246251565E-16. Added in the order written (0,3 + 0,2 + 0,1)
    // the stock would be 0. Halves add up exactly in any order.
    void sirasiOnemliToplamlarFisSirasiyla()
    {
        const QString k = u"150 02 01 001"_s, y = u"150 02 01 002"_s;
        sinif(k, u"SU"_s);
        sinif(y, u"YAĞ"_s);
        satir(3, u"05.01.2026"_s, k, u"0,3"_s, {});
        satir(2, u"05.01.2026"_s, k, u"0,2"_s, {});
        satir(1, u"05.01.2026"_s, k, u"0,1"_s, u"0,6"_s);
        satir(2, u"05.01.2026"_s, y, u"0,5"_s, u"0,25"_s);
        satir(1, u"05.01.2026"_s, y, u"1,5"_s, {});
        QCOMPARE(stoklar(yil2026()),
                 (QStringList{k + u"=1,11022302462516E-16"_s, y + u"=1,75"_s, u"GenelToplam|,00||,00"_s}));
    }

    // Both sides in code order; one material, the code range, or the class
    // on screen (F5) narrow them. No class at all gives no row.
    void siniflarSuzgecle()
    {
        for (const char* k : {"150 01 01 001", "255 01 01 001", "255 01 01 002"})
            sinif(QString::fromLatin1(k), u"Ad "_s + QString::fromLatin1(k).right(1) + QString::fromLatin1(k).left(3));
        const auto kodlar = [&](const RaporSuzgeci& s, const QString& kod = {}) {
            QStringList l;
            for (const Defter::Sinif& c : Siniflar(veri().Genel(), s, kod))
                l << c.HesapKod;
            return l;
        };
        RaporSuzgeci s = yil2026();
        QCOMPARE(kodlar(s), (QStringList{"150 01 01 001", "255 01 01 001", "255 01 01 002"}));
        QCOMPARE(kodlar(s, u"255 01 01 001"_s), QStringList{"255 01 01 001"});
        s.HesapKod5 = u"150 01 01 001"_s, s.HesapKod6 = u"255 01 01 001"_s;
        QCOMPARE(kodlar(s), (QStringList{"150 01 01 001", "255 01 01 001"}));
        s.TekMalzeme = u" Ad 2255 "_s;
        QCOMPARE(kodlar(s), QStringList());
        QVERIFY(Tablo(veri().Ayniyat(), veri().Genel(), s).satirlar.isEmpty());
        s.HesapKod5.clear(), s.HesapKod6.clear();
        QCOMPARE(kodlar(s), QStringList{"255 01 01 002"});
    }

    // The paper: the first page counts from 8 and breaks past 46, so it
    // holds 39 rows under two heading lines and the band; the next pages
    // count from 5, repeat the separators and carry the ledger's headings
    // without the band. The committee signs under the last row.
    void kagitSayfalarVeImzalar()
    {
        RaporTablosu t;
        t.baslik = u"SAYIM"_s;
        t.sutunlar = Sutunlar();
        for (int i = 1; i <= 40; ++i) {
            QStringList h(HucreSayisi);
            h[HesapKod] = u"K%1"_s.arg(i), h[Birimi] = u"iiiiiiiiii"_s;
            h[Kayitlara] = h[Ambardaki] = h[Ortak] = h[OrtakKullanim] = i == 1 ? u"0"_s : u"2,5"_s;
            t.satirlar << RaporSatiri{SatirTuru::Kayit, h};
        }
        const SabitSatiri sabit{{u"SayimBaskan"_s, u" ALİ "_s}, {u"SayimUyeUnvan2"_s, u"Memur"_s}};
        RaporSuzgeci s = yil2026();
        BellekCikti cikti;
        int sayfaNo = 1;
        auto belge = RaporBelgeleri::Kagit(cikti, Kagit(s, sabit), 7, 2, sayfaNo);
        belge->Ekle(t);
        belge->Bitir();
        const Belge b = cikti.belgeler.value(0);
        QCOMPARE(b.size(), 2);

        const auto metinler = [](const Sayfa& sayfa) {
            QStringList l;
            for (const SayfaYazisi& y : sayfa.yazilar)
                l << y.metin;
            return l;
        };
        const auto kalin = [](const Sayfa& sayfa, const QString& metin) {
            for (const SayfaYazisi& y : sayfa.yazilar)
                if (y.metin == metin)
                    return y.kalin;
            return false;
        };
        const QStringList ilk = metinler(b[0]), ikinci = metinler(b[1]);
        QVERIFY(ilk.contains(u"01.01.2026 -31.12.2026"_s) && ilk.contains(u"ÇIKIŞ"_s));
        QVERIFY(kalin(b[0], u"KayıtlaraGöre"_s) && kalin(b[0], u"AmbardakiMiktar"_s));
        QVERIFY(!ilk.contains(u"ÇıkanDeğer"_s));
        QCOMPARE(ilk.count(QString(106, u'-')) + ilk.count(QString(138, u'-')), 2);
        QVERIFY(ilk.contains(u"K39"_s) && !ilk.contains(u"K40"_s));
        // The unit is cut to 7; the stock right-aligned in three columns, a
        // zero blank there, and as it stands in the fourth.
        QCOMPARE(ilk.mid(ilk.indexOf(u"K1"_s), 8),
                 (QStringList{"K1", "iiiiiii", "0", "K2", "iiiiiii", "       2,5", "        2,5", "         2,5"}));

        QVERIFY(!ikinci.contains(u"GİRİŞ"_s) && !ikinci.contains(u"KayıtlaraGöre"_s));
        QVERIFY(kalin(b[1], u"Sıra"_s) && kalin(b[1], u"ÇıkanDeğer"_s));
        QCOMPARE(ikinci.count(QString(106, u'-')) + ikinci.count(QString(138, u'-')), 2);
        QCOMPARE(ikinci.mid(ikinci.indexOf(u"K40"_s) + 1).first(2), (QStringList{u"iiiiiii"_s, u"       2,5"_s}));
        QCOMPARE(ikinci.mid(ikinci.size() - 3), (QStringList{u"ALİ"_s, u"Memur"_s, u"TMY Örnek. 12"_s}));
        QVERIFY(ikinci.at(ikinci.size() - 4).startsWith(u"S       A"_s));
    }

    // The command line writes the minutes as one table; with no line in the
    // period there is nothing to write.
    void komutSatirindan()
    {
        sinif(u"255 01 01 001"_s, u"MASA"_s);
        satir(1, u"02.01.2026"_s, u"255 01 01 001"_s, u"5"_s, {});
        const RaporTanimi* r = RaporTanimlari::Bul(u"sayim-tutanagi"_s);
        QVERIFY(r);
        QCOMPARE(r->hangiler, u"D"_s);
        const QString dosya = klasor() + u"/sayim.csv"_s;
        QCOMPARE(RaporTanimlari::Yaz(*r, veri(), yil2026(), u"D"_s, dosya), 1);
        QFile f(dosya);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(f.readAll()).contains(u"MASA"_s));
        RaporSuzgeci s = yil2026();
        s.Tarih1 = QDate(2026, 1, 1);
        QCOMPARE(RaporTanimlari::Yaz(*r, veri(), s, u"D"_s, klasor() + u"/bos.csv"_s), 0);
        QVERIFY(!QFile::exists(klasor() + u"/bos.csv"_s));
    }
};

QTEST_MAIN(TstSayimTutanak)
#include "tst_sayim_tutanak.moc"
