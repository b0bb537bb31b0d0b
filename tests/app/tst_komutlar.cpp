#include "cikti.h"
#include "bicim.h"
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
        QTest::newRow("rapor csv, disk dolu") << QStringList{u"rapor"_s, u"defter"_s} << u"fis.csv"_s << rlim_t(256);
        QTest::newRow("rapor xlsx, disk dolu") << QStringList{u"rapor"_s, u"defter"_s} << u"fis.xlsx"_s << rlim_t(256);
        QTest::newRow("rapor pdf, disk dolu") << QStringList{u"rapor"_s, u"defter"_s} << u"fis.pdf"_s << rlim_t(256);
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
        secenek.hangi = u"D"_s;
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

    // One ledger class to the three outputs: the closing sums of the CSV
    // stand on the PDF's page and are numbers in the workbook.
    void defterUcCiktidaAyni()
    {
        QTemporaryDir dizin;
        QString kod;
        {
            Veri v(dizin.path());
            OrnekVeriYaz(v, 300);
            kod = v.Ayniyat().Satirlar(u"select HesapKod from FIS where Mid(HesapKod,1,3) <> '150' "
                                       "group by HesapKod order by count(*) desc"_s).value(0).value(0);
        }
        Komutlar::Secenekler secenek;
        secenek.hangi = u"X"_s, secenek.hesap = kod, secenek.cikti = dizin.filePath(u"d.csv"_s);
        QCOMPARE(Komutlar::Calistir({u"rapor"_s, u"defter"_s}, dizin.path(), secenek), 2);
        secenek.hangi = u"d"_s;
        for (const char* uzanti : {"csv", "xlsx", "pdf"}) {
            secenek.cikti = dizin.filePath(u"d."_s + QLatin1String(uzanti));
            QCOMPARE(Komutlar::Calistir({u"rapor"_s, u"defter"_s}, dizin.path(), secenek), 0);
        }
        QFile csv(dizin.filePath(u"d.csv"_s));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        const QStringList satirlar = QString::fromUtf8(csv.readAll()).split(u"\r\n"_s, Qt::SkipEmptyParts);
        QStringList kapanis;
        for (const QString& satir : satirlar)
            if (satir.contains(u"SüreGelen"_s))
                kapanis = satir.split(u';');
        QCOMPARE(kapanis.size(), 17);
        const QString solToplam = kapanis[6], sagMiktar = kapanis[11];
        QVERIFY(!solToplam.isEmpty());

        const auto cikar = [&](const QString& program, const QStringList& arg) {
            const QString yol = QStandardPaths::findExecutable(program);
            if (yol.isEmpty())
                return QString();
            QProcess surec;
            surec.start(yol, arg);
            surec.waitForFinished();
            return QString::fromUtf8(surec.readAllStandardOutput());
        };
        const QString pdf = cikar(u"pdftotext"_s, {u"-enc"_s, u"UTF-8"_s, dizin.filePath(u"d.pdf"_s), u"-"_s});
        const QString sayfa = cikar(u"unzip"_s, {u"-p"_s, dizin.filePath(u"d.xlsx"_s), u"xl/worksheets/sheet1.xml"_s});
        if (pdf.isEmpty() || sayfa.isEmpty())
            QSKIP("pdftotext or unzip is not installed");
        QVERIFY(pdf.contains(solToplam));
        QVERIFY(pdf.contains(sagMiktar));
        const QString sayi = QString::number(SayiDegeri(solToplam).value(), 'g', 15);
        QVERIFY2(sayfa.contains(u"<v>"_s + sayi + u"</v>"_s), qPrintable(sayi));
    }
};

QTEST_MAIN(TstKomutlar)
#include "tst_komutlar.moc"
