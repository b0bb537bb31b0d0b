#include "gecici_veri.h"
#include "veritabani.h"
#include "yil_sonu.h"

#include <QtTest>

using namespace Qt::StringLiterals;

// The year-end set over a hand-made year: two consumable classes whose
// lines every table reads alike (the account table reads a class's first
// line of a unit only: one line a class), so that a difference in the
// summary comes only from what a test adds.
class TstYilSonu : public QObject, protected GeciciVeri
{
    Q_OBJECT

    void satir(const QString& tarih, const QString& kod, const QString& miktar, const QString& cikan = {})
    {
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, Satir, HesapKod, Birimi, Miktar, Cikan, "
                                  "BirimFiyat) values (?, 1, 'G', 1, ?, 'ADET', ?, ?, '2.5')"_s,
                                  {tarih, kod, miktar, cikan});
    }

    YilSonu::Sonuc yaz(const YilSonu::Ilerleme& ilerleme = [](const QString&, int, int) { return true; })
    {
        return YilSonu::Yaz(veri(), u"2026"_s, cikti(),
                            YilSonuDenetimi::Denetle(veri().Ayniyat(), veri().Genel(), u"2026"_s), ilerleme);
    }

    QString cikti() const { return klasor() + u"/yil sonu"_s; }

    // The summary's rows of an account: figure, the five tables, the mark.
    static QList<QStringList> hesabin(const RaporTablosu& ozet, const QString& hesap)
    {
        QList<QStringList> satirlar;
        for (const RaporSatiri& r : ozet.satirlar)
            if (r.tur == SatirTuru::Kayit && r.hucreler.value(0) == hesap)
                satirlar << r.hucreler.mid(1);
        return satirlar;
    }

private slots:
    void init()
    {
        Yenile();
        Veritabani& g = veri().Genel();
        g.Calistir(u"delete from HESAP_K"_s);
        for (const auto& [kod, ad] : {std::pair(u"150"_s, u"İlk Madde"_s), {u"150 01"_s, u"Kırtasiye"_s},
                                      {u"150 01 01"_s, u"Kağıt"_s}, {u"150 01 02"_s, u"Kalem"_s}})
            g.Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, ?)"_s, {kod, ad});
        for (const QString& kod : {u"150 01 01 001"_s, u"150 01 02 001"_s})
            g.Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi) values (?, 'Malzeme', 'ADET')"_s, {kod});
        // The year's first and last days, and the first of the next, which
        // no table of 2026 counts.
        satir(u"01.01.2026"_s, u"150 01 01 001"_s, u"10"_s);
        satir(u"31.12.2026"_s, u"150 01 02 001"_s, u"8"_s, u"4"_s);
        satir(u"01.01.2027"_s, u"150 01 01 001"_s, u"100"_s);
    }

    void tablolarUyuncaFarkYok()
    {
        const YilSonu::Sonuc sonuc = yaz();
        QCOMPARE(sonuc.farklar, 0);
        // Every figure of the main account, each where its tables give it;
        // no second-level row, as nothing differs.
        const QList<QStringList> ana = hesabin(sonuc.ozet, u"150"_s);
        QCOMPARE(ana.size(), int(YilSonu::RakamSayisi));
        QCOMPARE(ana[YilSonu::GirenTutar],
                 (QStringList{u"Giren Tutar"_s, u"45,00  "_s, u"45,00  "_s, u"45,00  "_s, {}, u"45,00  "_s, {}}));
        QCOMPARE(ana[YilSonu::DevirMiktar],
                 (QStringList{u"Devir Miktar"_s, u"14,00  "_s, u"14,00  "_s, u"14,00  "_s, u"14,00  "_s, {}, {}}));
        QCOMPARE(ana[YilSonu::CikanTutar].value(5), u"10,00  "_s);
        QVERIFY(hesabin(sonuc.ozet, u"150 01 01"_s).isEmpty());

        // The files of the tables with lines, the book with a sheet each.
        QStringList adlar;
        for (const QString& dosya : sonuc.dosyalar)
            adlar << QFileInfo(dosya).fileName();
        QCOMPARE(adlar, (QStringList{u"2026_yil_sonu_denetimi.pdf"_s, u"2026_TMY-13_sayim_ve_dokum_cetveli.pdf"_s,
                                     u"2026_TMY-15_hesap_cetveli.pdf"_s, u"2026_TMY-17_kesin_hesap_icmal_cetveli.pdf"_s,
                                     u"2026_TMY-12_sayim_tutanagi.pdf"_s, u"2026_tuketim_malzemeleri_defteri.pdf"_s,
                                     u"2026_yil_sonu_ozeti.pdf"_s, u"2026_yil_sonu.xlsx"_s}));
        QProcess unzip;
        unzip.start(u"unzip"_s, {u"-p"_s, sonuc.dosyalar.last(), u"xl/workbook.xml"_s});
        unzip.waitForFinished();
        const QString kitap = QString::fromUtf8(unzip.readAllStandardOutput());
        for (const QString& sayfa : {u"Denetim"_s, u"TMY-13"_s, u"TMY-15"_s, u"TMY-17"_s, u"TMY-12"_s, u"Defter T"_s,
                                     u"Özet"_s})
            QVERIFY2(kitap.contains(u"name=\"%1\""_s.arg(sayfa)), qPrintable(sayfa));
        QVERIFY(!kitap.contains(u"TMY-8"_s));
    }

    // VAT on the entry: the ledger adds it to the price, the tables do not.
    // The difference is marked on the entry amount alone, in the ledger's
    // cell, for the main account and its second-level code.
    void ayrilanRakamYerindeIsaretli()
    {
        veri().Ayniyat().Calistir(u"update FIS set KDV = 20 where Tarih = '01.01.2026'"_s);
        const YilSonu::Sonuc sonuc = yaz();
        QCOMPARE(sonuc.farklar, 2);
        for (const QString& hesap : {u"150"_s, u"150 01 01"_s}) {
            const QList<QStringList> satirlar = hesabin(sonuc.ozet, hesap);
            const QStringList giren = satirlar.value(hesap.size() == 3 ? int(YilSonu::GirenTutar) : 0);
            QCOMPARE(giren.value(0), u"Giren Tutar"_s);
            QCOMPARE(giren.value(1), hesap.size() == 3 ? u"45,00  "_s : u"25,00  "_s);
            QCOMPARE(giren.value(5), hesap.size() == 3 ? u"50,00 *"_s : u"30,00 *"_s);
            QCOMPARE(giren.value(6), u"FARK"_s);
        }
        QCOMPARE(hesabin(sonuc.ozet, u"150 01 01"_s).size(), 1);
    }

    // A check's finding is told on the summary and does not stop the set.
    void denetimBulgusuOzette()
    {
        veri().Ayniyat().Calistir(u"update FIS set Miktar = '1O' where Tarih = '01.01.2026'"_s);
        const YilSonu::Sonuc sonuc = yaz();
        QVERIFY(sonuc.bulgular > 0);
        QVERIFY(QFileInfo::exists(cikti() + u"/2026_yil_sonu.xlsx"_s));
        QStringList denetim;
        for (const RaporSatiri& r : sonuc.ozet.satirlar)
            if (r.tur == SatirTuru::Baslik && r.hucreler.value(0).startsWith(u"5. "_s))
                denetim << r.hucreler.value(0);
        QCOMPARE(denetim, QStringList{u"5. Düz sayı olarak yazılmamış miktar ve fiyatlar: 1 bulgu"_s});
    }

    // Stopped on the third step: the first two tables stand whole, the
    // book and the summary are not written.
    void durduruluncaKitapYazilmaz()
    {
        const YilSonu::Sonuc sonuc = yaz([](const QString&, int no, int) { return no < 3; });
        QVERIFY(sonuc.durdu);
        QCOMPARE(QDir(cikti()).entryList(QDir::Files),
                 (QStringList{u"2026_TMY-13_sayim_ve_dokum_cetveli.pdf"_s, u"2026_yil_sonu_denetimi.pdf"_s}));
    }
};

QTEST_MAIN(TstYilSonu)
#include "tst_yil_sonu.moc"
