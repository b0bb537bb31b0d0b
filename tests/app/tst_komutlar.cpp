#include "cikti.h"
#include "fis_kayit.h"
#include "komutlar.h"
#include "ornek_veri.h"
#include "veri.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

// While it lives no file may grow past the given size: a write beyond it
// fails as on a full disk, which a test cannot mount. The signal is ignored
// so the write fails instead of the process.
struct DosyaSiniri
{
    explicit DosyaSiniri(rlim_t bayt) : isleyici(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &eski);
        const rlimit yeni{bayt, eski.rlim_max};
        setrlimit(RLIMIT_FSIZE, &yeni);
    }
    ~DosyaSiniri()
    {
        setrlimit(RLIMIT_FSIZE, &eski);
        std::signal(SIGXFSZ, isleyici);
    }
    void (*isleyici)(int);
    rlimit eski{};
};

}

// The commands that draw PDF files; fonts need a GUI application.
class TstKomutlar : public QObject
{
    Q_OBJECT

private slots:
    void yazilamayanBelgeBasariSayilmaz_data()
    {
        QTest::addColumn<QStringList>("argumanlar");
        QTest::addColumn<QString>("dosya");
        QTest::addColumn<rlim_t>("sinir");
        QTest::newRow("ornek-formlar, disk dolu") << QStringList{u"ornek-formlar"_s} << QString() << rlim_t(1024);
        QTest::newRow("yazdir, disk dolu") << QStringList{u"yazdir"_s, u"fis"_s} << u"fis.pdf"_s << rlim_t(1024);
        QTest::newRow("yazdir, klasörü bir dosya") << QStringList{u"yazdir"_s, u"fis"_s} << u"engel/fis.pdf"_s
                                                   << rlim_t(RLIM_INFINITY);
    }

    // The command fails; an old file stays as it was and nothing is left
    // cut short beside it.
    void yazilamayanBelgeBasariSayilmaz()
    {
        QFETCH(QStringList, argumanlar);
        QFETCH(QString, dosya);
        QFETCH(rlim_t, sinir);
        QTemporaryDir dizin;
        Veri v(dizin.path());  // held open: the command's own opening then writes nothing
        OrnekVeriYaz(v, 50);
        const QDir cikti(dizin.path());
        QFile eski(cikti.filePath(u"fis.pdf"_s));
        QVERIFY(eski.open(QIODevice::WriteOnly) && eski.write("eski") == 4);
        eski.close();
        QFile(cikti.filePath(u"engel"_s)).open(QIODevice::WriteOnly);
        const QStringList once = cikti.entryList(QDir::Files);
        Komutlar::Secenekler secenek;
        secenek.no = u"1"_s;
        secenek.cins = u"G"_s;
        secenek.yil = u"2025"_s;
        secenek.cikti = cikti.filePath(dosya);
        int sonuc = 0;
        {
            DosyaSiniri s(sinir);
            sonuc = Komutlar::Calistir(argumanlar, dizin.path(), secenek);
        }
        QCOMPARE(sonuc, 1);
        QCOMPARE(cikti.entryList(QDir::Files), once);
        QVERIFY(eski.open(QIODevice::ReadOnly));
        QCOMPARE(eski.readAll(), "eski");
    }

    // A total of 1 to 9 kuruş cannot be spelled: the page is written all the
    // same, the command warns and answers 3.
    void yaziylaYazilamayanTutar()
    {
        QTemporaryDir tmp;
        {
            Veri veri(tmp.path());
            FisEkrani f;
            f.FisNo = u"1"_s, f.Tarih = u"10.03.2026"_s, f.FCins = f.Hangi = u"G"_s;
            f.CalisYil = u"2026"_s, f.CalisAy = u"3"_s;
            f.Satirlar = {{"", "150 01 01 001", "Kalem", "", "ADET", "1", "10.05", "05.03.2026", "", "1", "", "",
                           "", "0", "", "", ""}};
            QCOMPARE(FisKayit::Kaydet(veri.Ayniyat(), f, [] { return true; }), KayitSonucu::Kaydedildi);
        }
        Komutlar::Secenekler secenek;
        secenek.no = u"1"_s, secenek.cins = u"G"_s, secenek.yil = u"2026"_s;
        secenek.cikti = tmp.filePath(u"fis.pdf"_s);
        QCOMPARE(Komutlar::Calistir({u"yazdir"_s, u"fis"_s}, tmp.path(), secenek), 3);
        QVERIFY(PdfTamam(secenek.cikti));
    }

    // A saved write-off's minutes go to a PDF whole; an unknown number fails
    // and writes nothing.
    void dusumYazdir()
    {
        QTemporaryDir dizin;
        QStringList dusum;
        {
            Veri v(dizin.path());
            OrnekVeriYaz(v, 50);
            dusum = v.Ayniyat().Satirlar(u"select FisNo, Mid(Tarih,7,4), KomisyonBaskaniAdi from DUSUM_B"_s).value(0);
        }
        QVERIFY(!dusum.isEmpty());
        Komutlar::Secenekler secenek;
        secenek.no = QString::number(dusum[0].toInt() + 1), secenek.yil = dusum[1];
        secenek.cikti = dizin.filePath(u"yok.pdf"_s);
        QCOMPARE(Komutlar::Calistir({u"yazdir"_s, u"dusum"_s}, dizin.path(), secenek), 1);
        QVERIFY(!QFile::exists(secenek.cikti));

        secenek.no = dusum[0];
        secenek.cikti = dizin.filePath(u"dusum.pdf"_s);
        QCOMPARE(Komutlar::Calistir({u"yazdir"_s, u"dusum"_s}, dizin.path(), secenek), 0);
        QVERIFY(PdfTamam(secenek.cikti));
        const QString pdftotext = QStandardPaths::findExecutable(u"pdftotext"_s);
        if (pdftotext.isEmpty())
            QSKIP("pdftotext is not installed");
        QProcess surec;
        surec.start(pdftotext, {u"-enc"_s, u"UTF-8"_s, secenek.cikti, u"-"_s});
        QVERIFY(surec.waitForFinished());
        const QString metin = QString::fromUtf8(surec.readAllStandardOutput());
        QVERIFY(metin.contains(u"KAYITTAN DÜŞME TEKLİF VE ONAY TUTANAĞI"_s));
        QVERIFY(metin.contains(dusum[2]));
    }
};

QTEST_MAIN(TstKomutlar)
#include "tst_komutlar.moc"
