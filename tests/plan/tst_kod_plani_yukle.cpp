#include "hata_metni.h"
#include "kod_listesi_oku.h"
#include "kod_plani_yukle.h"
#include "veri_hatasi.h"
#include "veritabani.h"
#include "veri.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstKodPlaniYukle : public QObject
{
    Q_OBJECT

    static QString dosya(const QTemporaryDir& tmp, const QByteArray& icerik)
    {
        const QString yol = tmp.filePath(u"kodlar.tsv"_s);
        QFile f(yol);
        f.open(QIODevice::WriteOnly);
        f.write(icerik);
        return yol;
    }
    // The first column of every row a query gives.
    static QStringList sutun(Veritabani& vt, const QString& sql)
    {
        QStringList s;
        for (const QStringList& satir : vt.Satirlar(sql))
            s << satir.value(0);
        return s;
    }
    static int say(Veritabani& vt, const QString& tablo)
    {
        return sutun(vt, u"select count(*) from "_s + tablo).value(0).toInt();
    }

private slots:
    void ekler_adlandirir_ve_aynisini_birakir()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        const int plan = say(veri.Genel(), u"HESAP_K"_s);
        const KodPlaniSonucu sonuc = KodPlaniYukle(veri, dosya(tmp, "150\tİlkmadde-Malzeme\n"
                                                                    "\n"
                                                                    "150 01\tKırtasiye ve Büro Malzemeleri\n"
                                                                    "150 11\tOkul'un Özel Malzemeleri\n"
                                                                    "150 11 01\tKoro Kıyafetleri\n"));
        QCOMPARE(QList<int>({sonuc.eklenen, sonuc.adiDegisen, sonuc.ayni}), QList<int>({2, 1, 1}));

        Veritabani& genel = veri.Genel();
        QCOMPARE(say(genel, u"HESAP_K"_s), plan + 2);
        QCOMPARE(sutun(genel, u"select HesapAd from HESAP_K where HesapKod in ('150 01', '150 11') order by 1"_s),
                 QStringList({"Kırtasiye ve Büro Malzemeleri", "Okul'un Özel Malzemeleri"}));
        // The new level 2 row answers the level test the class screen makes.
        QCOMPARE(sutun(genel, u"select HesapKod from HESAP_K where Mid(HesapKod,1,6) = '150 11' and "
                              "Mid(HesapKod,11,1) = '' and Mid(HesapKod,9,1) <> ''"_s),
                 QStringList{"150 11 01"});

        Veritabani& hk = veri.HesapKod();
        QCOMPARE(sutun(hk, u"select MalzAdi from HesapKod2 where HesapKod = '150 01'"_s),
                 QStringList{"Kırtasiye ve Büro Malzemeleri"});
        QCOMPARE(sutun(hk, u"select Alan7 from HesapKod1 where Alan1 = '150' and Alan2 = '11' and Alan3 = '01' and "
                           "Alan4 = ''"_s),
                 QStringList{"Koro Kıyafetleri"});
        QCOMPARE(sutun(hk, u"select Alan7 from HesapKod1 where Alan1 = '150' and Alan2 = '01' and Alan3 = ''"_s),
                 QStringList{"Kırtasiye ve Büro Malzemeleri"});
        QCOMPARE(say(hk, u"HesapKod1"_s), plan + 2);
    }

    // The plan cannot take the codes after the reference plan took them:
    // the reference plan goes back to its old names and rows, and the next
    // opening finds nothing left to undo.
    void yarimKalanYuklemeGeriAlinir()
    {
        QTemporaryDir tmp;
        const QString yol = dosya(tmp, "150 01\tYeni Ad\n150 12\tYeni Grup\n");
        const auto hepsi = [](Veri& veri) {
            return QList<QList<QStringList>>{
                veri.HesapKod().Satirlar(QStringLiteral("select * from HesapKod1 order by rowid")),
                veri.HesapKod().Satirlar(QStringLiteral("select * from HesapKod2 order by rowid")),
                veri.Genel().Satirlar(QStringLiteral("select * from HESAP_K order by rowid"))};
        };
        QList<QList<QStringList>> once;
        {
            Veri veri(tmp.path());
            once = hepsi(veri);
            veri.Genel().Calistir(QStringLiteral("create trigger dur before insert on HESAP_K "
                                                 "begin select raise(abort, 'disk dolu'); end"));
            QVERIFY_THROWS_EXCEPTION(VeriHatasi, KodPlaniYukle(veri, yol));
            veri.Genel().Calistir(QStringLiteral("drop trigger dur"));
        }
        Veri veri(tmp.path());
        QVERIFY(veri.Tamamlananlar().isEmpty());
        QVERIFY(hepsi(veri) == once);
    }

    void okur_data()
    {
        QTest::addColumn<QByteArray>("icerik");
        QTest::addColumn<QString>("kodlama");
        QTest::addColumn<QStringList>("satirlar");
        QTest::addColumn<int>("kesilen");
        QTest::newRow("BOM") << QByteArray("\xEF\xBB\xBF" "150 01\tKırtasiye\n") << u"UTF-8"_s
                             << QStringList{u"1|150 01|Kırtasiye"_s} << 0;
        QTest::newRow("Windows-1254") << QByteArray("150 01\tK\xFDrtasiye \xDE\xD0\xDD\xFE\xF0\x80\x9F\n")
                                      << u"Windows-1254"_s << QStringList{u"1|150 01|Kırtasiye ŞĞİşğ€Ÿ"_s} << 0;
        // Valid UTF-8 up to a lead byte at the very end.
        QTest::newRow("sonda yarım UTF-8") << QByteArray("150 01\tÇ\xC3") << u"Windows-1254"_s
                                           << QStringList{u"1|150 01|Ã‡Ã"_s} << 0;
        QTest::newRow("CR, LF, CRLF") << QByteArray("150 01\tA\r150 02\tB\r\n\r\n150 03\tC\n150 04\tD") << u"UTF-8"_s
                                      << QStringList{u"1|150 01|A"_s, u"2|150 02|B"_s, u"4|150 03|C"_s, u"5|150 04|D"_s}
                                      << 0;
        QTest::newRow("sınırda ad") << "150 01\t" + QString(50, u'ç').toUtf8() << u"UTF-8"_s
                                    << QStringList{"1|150 01|"_L1 + QString(50, u'ç')} << 0;
        QTest::newRow("uzun adlar")
            << "150 01\t" + QString(51, u'ç').toUtf8() + "\n150 02\t" + QByteArray(5 << 20, 'x') << u"UTF-8"_s
            << QStringList{"1|150 01|"_L1 + QString(50, u'ç'), "2|150 02|"_L1 + QString(50, u'x')} << 2;
    }

    void okur()
    {
        QFETCH(QByteArray, icerik);
        QFETCH(QString, kodlama);
        QFETCH(QStringList, satirlar);
        QFETCH(int, kesilen);
        QTemporaryDir tmp;
        KodListesiBilgisi bilgi;
        QStringList okunan;
        for (const KodSatiri& s : KodListesiOku(dosya(tmp, icerik), &bilgi))
            okunan << u"%1|%2|%3"_s.arg(s.satirNo).arg(s.kod, s.ad);
        QCOMPARE(okunan, satirlar);
        QCOMPARE(bilgi.kodlama, kodlama);
        QCOMPARE(bilgi.kesilen, kesilen);
    }

    void bozukSatirdaHicbirSeyYazilmaz_data()
    {
        QTest::addColumn<QByteArray>("icerik");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("biçim") << QByteArray("150 01\tYeni Ad\n150 12\tYeni\n15 01\tBozuk\n")
                               << QStringLiteral("Satır 3: \"15 01\" kodu XXX XX XX XX XX XX XX biçiminde değil.");
        QTest::newRow("çift boşluk") << QByteArray("150 01\tYeni Ad\n150  12\tBozuk\n")
                                     << QStringLiteral("Satır 2: \"150  12\" kodu");
        QTest::newRow("sekme yok") << QByteArray("150 01\tYeni Ad\n150 12 Bozuk\n")
                                   << QStringLiteral("Satır 2: kod ile adı bir sekme ile ayrılmalı.");
        QTest::newRow("ad yok") << QByteArray("150 01\tYeni Ad\n150 12\t  \n")
                                << QStringLiteral("Satır 2: \"150 12\" kodunun adı boş.");
        QTest::newRow("iki kez") << QByteArray("150 12\tYeni\n150 01\tYeni Ad\n150 12\tYine\n")
                                 << QStringLiteral("Satır 3: \"150 12\" kodu 1. satırda da var.");
        QTest::newRow("CR ile biten satırlar") << QByteArray("150 01\tYeni Ad\r150 12\tYeni\r15 01\tBozuk\r")
                                               << u"Satır 3: \"15 01\" kodu"_s;
        QTest::newRow("uzun kod") << QByteArray(100, '1') + "\tAd\n"
                                  << u"Satır 1: \"%1…\" kodu XXX"_s.arg(QString(40, u'1'));
        QTest::newRow("üçüncü sütun")
            << QByteArray("150 01\tYeni Ad\n150 12\tYeni\tFazla\n")
            << u"Satır 2: iki sütundan fazlası var (ikinci bir sekme): \"150 12\\tYeni\\tFazla\"."_s;
        QTest::newRow("NUL") << QByteArray("150 01\tYeni Ad\n150 12\tKırta") + '\0' + "siye\n"
                             << u"Satır 2: izin verilmeyen bir denetim karakteri (\\x00) var: "
                                u"\"150 12\\tKırta\\x00siye\"."_s;
        QTest::newRow("yalnız sayfa sonu") << QByteArray("150 01\tYeni Ad\n \f\n")
                                           << u"Satır 2: izin verilmeyen bir denetim karakteri (\\x0c)"_s;
        QTest::newRow("DEL") << QByteArray("150 01\tYeni Ad\n150 12\tYeni\x7f\n")
                             << u"Satır 2: izin verilmeyen bir denetim karakteri (\\x7f)"_s;
        QTest::newRow("1254'te tanımsız bayt") << QByteArray("150 01\tYeni Ad\n150 12\tK\xFDrtasiye\x81\n")
                                               << u"Satır 2: izin verilmeyen bir denetim karakteri (\\x81)"_s;
        QTest::newRow("uzun satırın sonunda kaçış")
            << QByteArray("150 12\t") + QByteArray(60, 'a') + "\x1b\n"
            << u"Satır 1: izin verilmeyen bir denetim karakteri (\\x1b) var: \"150 12\\t%1…\"."_s.arg(
                   QString(33, u'a'));
    }

    void bozukSatirdaHicbirSeyYazilmaz()
    {
        QFETCH(QByteArray, icerik);
        QFETCH(QString, mesaj);
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        const QString hata = HataMetni<VeriHatasi>([&] { KodPlaniYukle(veri, dosya(tmp, icerik)); });
        QVERIFY2(hata.startsWith(mesaj), qPrintable(hata));
        QVERIFY(hata.endsWith(u"Hesap planına hiçbir şey yazılmadı."_s));
        QCOMPARE(sutun(veri.Genel(), u"select HesapAd from HESAP_K where HesapKod in ('150 01', '150 12')"_s),
                 QStringList{"Kırtasiye Malzemeleri"});
    }
};

QTEST_GUILESS_MAIN(TstKodPlaniYukle)
#include "tst_kod_plani_yukle.moc"
