#include "cikti.h"
#include "gecici_veri.h"
#include "rapor_belgesi.h"
#include "rapor_tanimlari.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_kagidi.h"
#include "veri.h"
#include "veritabani.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace SayimTutanagi;

// The count minutes on small hand-made data: the book stock of each class,
// the closing row, the paper.
class TstSayimTutanak : public QObject, protected GeciciVeri
{
    Q_OBJECT

    void satir(int fisNo, const QString& tarih, const QString& kod, const QString& miktar, const QString& cikan,
               const QString& fcinss = {}, int ambar = 1)
    {
        veri().Genel().Calistir(u"insert or ignore into URUN_K (HesapKod, MalzAdi, Birimi) values (?, ?, 'ADET')"_s,
                                {kod, u"Ad "_s + kod.right(3)});
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, FCinss, Satir, HesapKod, Miktar, Cikan, "
                                  "AmbarNo) values (?, ?, 'G', ?, 1, ?, ?, ?, ?)"_s,
                                  {tarih, fisNo, fcinss, kod, miktar, cikan, ambar});
    }

    // "code=stock" a row, the stock checked to stand in its four cells; the
    // closing row's cells 3 to 6.
    QStringList stoklar(const RaporSuzgeci& s, const QString& kod = {})
    {
        QStringList l;
        for (const RaporSatiri& r : Tablo(veri().Ayniyat(), veri().Genel(), s, kod).satirlar)
            l << (r.tur == SatirTuru::Kapanis ? r.hucreler.mid(Birimi, 4).join(u'|')
                  : r.hucreler.mid(Kayitlara, 4) == QStringList(4, r.hucreler[Kayitlara])
                      ? r.hucreler[HesapKod] + u'=' + r.hucreler[Kayitlara]
                      : u"?"_s);
        return l;
    }

    static RaporSuzgeci yil2026()
    {
        RaporSuzgeci s;
        s.Tarih = QDate(2026, 1, 1), s.Tarih1 = QDate(2026, 12, 31);
        return s;
    }

private slots:
    void init() { Yenile(); }

    // K = G - T - D: what entered, less what a consumable class issued, less
    // what was written off ("D" only). A durable issue to a person does not
    // lower it; a consumable line written off counts twice. The range's
    // first and last days count; a class without lines in it has no row.
    // Both sides come in code order.
    void stokGirenEksiTuketilenEksiDusulen()
    {
        const QString kagit = u"150 01 01 001"_s, kalem = u"150 01 01 002"_s, silgi = u"150 01 01 003"_s;
        const QString masa = u"255 01 01 001"_s, dolap = u"255 01 01 002"_s;
        satir(1, u"01.01.2026"_s, kagit, u"10"_s, {});        // 10 + 2,5 - 3 = 9,5
        satir(2, u"31.12.2026"_s, kagit, u"2,5"_s, u"3"_s);
        satir(3, u"31.12.2025"_s, kagit, u"100"_s, {});
        satir(4, u"01.01.2027"_s, kagit, {}, u"100"_s);
        satir(5, u"02.01.2026"_s, kalem, u"4"_s, {});         // 4 - 1 - 1 = 2
        satir(6, u"03.01.2026"_s, kalem, {}, u"1"_s, u"D"_s);
        satir(7, u"02.01.2026"_s, silgi, u"3"_s, u"3"_s);     // 0, still a row
        satir(8, u"02.01.2026"_s, masa, u"5"_s, u"2"_s);      // 5 - 1 = 4
        satir(9, u"05.01.2026"_s, masa, {}, u"1"_s, u"d"_s);
        satir(10, u"06.01.2026"_s, masa, {}, u"1"_s, u"D"_s);
        satir(11, u"31.12.2025"_s, dolap, u"7"_s, {});
        const QString kapanis = u"GenelToplam|,00||,00"_s;
        QCOMPARE(stoklar(yil2026()), (QStringList{kagit + u"=9,5"_s, kalem + u"=2"_s, silgi + u"=0"_s,
                                                    masa + u"=4"_s, kapanis}));
        // F5's class alone; the code range, one material (KAĞIT and MASA are
        // "Ad 001") and both together narrow the classes; none, no row.
        QCOMPARE(stoklar(yil2026(), masa), (QStringList{masa + u"=4"_s, kapanis}));
        RaporSuzgeci s = yil2026();
        s.HesapKod5 = kalem, s.HesapKod6 = masa;
        QCOMPARE(stoklar(s).size(), 4);
        s.TekMalzeme = u" Ad 001 "_s;
        QCOMPARE(stoklar(s), (QStringList{masa + u"=4"_s, kapanis}));
        s.HesapKod6 = silgi;
        QCOMPARE(stoklar(s), QStringList());
        // Store 2 only.
        satir(12, u"04.01.2026"_s, kagit, u"7"_s, {}, {}, 2);
        s = yil2026();
        s.AmbarNo = u"2"_s;
        QCOMPARE(stoklar(s), (QStringList{kagit + u"=7"_s, kapanis}));
        // The header block names the last class of the walk, lines or not.
        QCOMPARE(Tablo(veri().Ayniyat(), veri().Genel(), s).tasinirKod, dolap);

        // The command line writes it as one table, and nothing without lines.
        const RaporTanimi* r = RaporTanimlari::Bul(u"sayim-tutanagi"_s);
        QCOMPARE(RaporTanimlari::Yaz(*r, veri(), s, u"D"_s, klasor() + u"/s.csv"_s), 1);
        s.Tarih = s.Tarih1 = QDate(2026, 1, 5);
        QCOMPARE(RaporTanimlari::Yaz(*r, veri(), s, u"D"_s, klasor() + u"/b.csv"_s), 0);
        QVERIFY(QFile::exists(klasor() + u"/s.csv"_s) && !QFile::exists(klasor() + u"/b.csv"_s));
    }

    // The sums run in voucher order: 0,1 + 0,2 + 0,3 is 0,6000000000000001,
    // less 0,6 leaves 1,1102230246251565E-16 (0 in the order written). Halves
    // add up exactly in any order: 1,5 + 0,5 - 0,25 = 1,75.
    void toplamlarFisSirasiyla()
    {
        const QString su = u"150 02 01 001"_s, yag = u"150 02 01 002"_s;
        satir(3, u"05.01.2026"_s, su, u"0,3"_s, {});
        satir(2, u"05.01.2026"_s, su, u"0,2"_s, {});
        satir(1, u"05.01.2026"_s, su, u"0,1"_s, u"0,6"_s);
        satir(2, u"05.01.2026"_s, yag, u"0,5"_s, u"0,25"_s);
        satir(1, u"05.01.2026"_s, yag, u"1,5"_s, {});
        QCOMPARE(stoklar(yil2026()).mid(0, 2), (QStringList{su + u"=1,11022302462516E-16"_s, yag + u"=1,75"_s}));
    }

    // The first page counts from 8 and breaks past 46: 39 rows under the band
    // and two heading lines. The next counts from 5, repeats the separators
    // and carries the ledger's headings, no band; the committee signs last.
    void kagitSayfalarVeImzalar()
    {
        RaporTablosu t;
        for (int i = 1; i <= 40; ++i) {
            QStringList h(HucreSayisi);
            h[HesapKod] = u"K%1"_s.arg(i), h[Birimi] = u"iiiiiiiiii"_s;
            h[Kayitlara] = h[Ambardaki] = h[Ortak] = h[OrtakKullanim] = i == 1 ? u"0"_s : u"2,5"_s;
            t.satirlar << RaporSatiri{SatirTuru::Kayit, h};
        }
        const SabitSatiri sabit{{u"SayimBaskan"_s, u" ALİ "_s}, {u"SayimUyeUnvan2"_s, u"Memur"_s}};
        BellekCikti cikti;
        int sayfaNo = 1;
        auto belge = RaporBelgeleri::Kagit(cikti, Kagit(yil2026(), sabit), 7, 2, sayfaNo);
        belge->Ekle(t);
        belge->Bitir();
        const Belge b = cikti.belgeler.value(0);
        QCOMPARE(b.size(), 2);
        QStringList sayfa[2], kalin[2];
        for (int i = 0; i < 2; ++i)
            for (const SayfaYazisi& y : b[i].yazilar)
                (y.kalin ? kalin[i] : sayfa[i]) << y.metin;
        const QString ayirici = QString(106, u'-') + QString(138, u'-');
        QCOMPARE(sayfa[0].mid(0, 5).join(QString()), u"GİRİŞ01.01.2026 -31.12.2026ÇIKIŞ"_s + ayirici);
        QCOMPARE(kalin[0].mid(10, 3), (QStringList{"Açıklama", "3.Detay Kod", "TaşınırAdı    "}));
        // The unit cut to 7; the stock right-aligned, a zero blank, and as it
        // stands in the fourth column.
        QCOMPARE(sayfa[0].mid(5, 8),
                 (QStringList{"K1", "iiiiiii", "0", "K2", "iiiiiii", "       2,5", "        2,5", "         2,5"}));
        QCOMPARE(sayfa[0].at(sayfa[0].size() - 6), u"K39"_s);
        QCOMPARE(sayfa[1].first(3).join(QString()), ayirici + u"K40"_s);
        QCOMPARE(kalin[1].first() + kalin[1].last(), u"SıraÇıkanDeğer"_s);
        QVERIFY(sayfa[1].at(sayfa[1].size() - 4).startsWith(u"S       A       Y"_s));
        QCOMPARE(sayfa[1].mid(sayfa[1].size() - 3), (QStringList{"ALİ", "Memur", "TMY Örnek. 12"}));
    }
};

QTEST_MAIN(TstSayimTutanak)
#include "tst_sayim_tutanak.moc"
