#include "dosya_siniri.h"
#include "komutlar.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veri.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

// The commands that write PDF files; they draw with fonts, so they run
// under a GUI application.
class TstKomutlar : public QObject
{
    Q_OBJECT

private slots:
    void init() { Saat::Ayarla(QDate(2025, 6, 18)); }
    void cleanup() { Saat::Ayarla(QDate()); }

    // A form that cannot be written makes the command fail, with no file
    // left cut short or empty.
    void yazilamayanBelgeBasariSayilmaz_data()
    {
        QTest::addColumn<QStringList>("argumanlar");
        QTest::addColumn<QString>("dosya");
        QTest::addColumn<bool>("diskDolu");
        QTest::newRow("ornek-formlar, disk dolu") << QStringList{u"ornek-formlar"_s} << QString() << true;
        QTest::newRow("yazdir, disk dolu") << QStringList{u"yazdir"_s, u"fis"_s} << u"fis.pdf"_s << true;
        QTest::newRow("yazdir, klasörü bir dosya") << QStringList{u"yazdir"_s, u"fis"_s} << u"engel/fis.pdf"_s
                                                   << false;
    }

    void yazilamayanBelgeBasariSayilmaz()
    {
        QFETCH(QStringList, argumanlar);
        QFETCH(QString, dosya);
        QFETCH(bool, diskDolu);
        QTemporaryDir dizin;
        // Held open, so that the command's own opening of the files writes
        // nothing that the limit would stop.
        Veri v(dizin.path());
        OrnekVeriYaz(v, 50);
        const QDir cikti(dizin.filePath(u"formlar"_s));
        QVERIFY(cikti.mkpath(u"."_s));
        QFile engel(cikti.filePath(u"engel"_s));
        QVERIFY(engel.open(QIODevice::WriteOnly));
        engel.close();
        Komutlar::Secenekler secenek;
        secenek.no = u"1"_s;
        secenek.cins = u"G"_s;
        secenek.yil = u"2025"_s;
        secenek.cikti = cikti.filePath(dosya);
        int sonuc = 0;
        {
            DosyaSiniri sinir(diskDolu ? 1024 : RLIM_INFINITY);
            sonuc = Komutlar::Calistir(argumanlar, dizin.path(), secenek);
        }
        QCOMPARE(sonuc, 1);
        QCOMPARE(cikti.entryList(QDir::Files), QStringList{u"engel"_s});
    }
};

QTEST_MAIN(TstKomutlar)
#include "tst_komutlar.moc"
