#include "dosyalar_arasi.h"
#include "saat.h"
#include "veri.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

// A run cut short between the files of one write: the next opening brings
// the other files to the side the record names.
class TstDosyalarArasi : public QObject
{
    Q_OBJECT

    static int sayi(Veritabani& vt, const QString& tablo)
    {
        return vt.Satirlar(u"select count(*) from "_s + tablo).value(0).value(0).toInt();
    }

private slots:
    void init() { Saat::Ayarla(QDate(2026, 3, 14)); }
    void cleanup() { Saat::Ayarla({}); }

    void yarimKalanYazmaSonrakiAcilistaBiter_data()
    {
        QTest::addColumn<bool>("geriAl");
        QTest::addColumn<int>("ayniyatta");
        QTest::addColumn<QString>("soz");
        // Finish: the voucher head still to come is written.
        QTest::newRow("tamamla") << false << 1 << u"Yarım kalan işlem tamamlandı: Deneme"_s;
        // Undo: the vouchers written before the plan's part are taken out.
        QTest::newRow("geri al") << true << 0 << u"Yarım kalan işlem geri alındı: Deneme"_s;
    }

    void yarimKalanYazmaSonrakiAcilistaBiter()
    {
        QFETCH(bool, geriAl);
        QFETCH(int, ayniyatta);
        QFETCH(QString, soz);
        QTemporaryDir tmp;
        {
            Veri veri(tmp.path());
            const QList<DosyalarArasi::Komut> komutlar =
                geriAl ? QList<DosyalarArasi::Komut>{{Dosya::Ayniyat, u"delete from FIS_B"_s, {}}}
                       : QList<DosyalarArasi::Komut>{
                             {Dosya::Ayniyat,
                              u"insert into FIS_B (FisNo, FCins) select ?, 'G' where not exists "
                              "(select 1 from FIS_B where FisNo = ?)"_s,
                              {7, 7}}};
            DosyalarArasi::Kaydet(veri.Genel(), u"Deneme"_s, geriAl, komutlar);
            if (geriAl)
                veri.Ayniyat().Calistir(u"insert into FIS_B (FisNo, FCins) values (1, 'G')"_s);
            // The run ends here.
        }
        Veri veri(tmp.path());
        QCOMPARE(veri.Tamamlananlar(), QStringList{soz});
        QCOMPARE(sayi(veri.Ayniyat(), u"FIS_B"_s), ayniyatta);
        QCOMPARE(sayi(veri.Genel(), u"BEKLEYEN"_s), 0);
        Veri yine(tmp.path());
        QVERIFY(yine.Tamamlananlar().isEmpty());
        QCOMPARE(sayi(yine.Ayniyat(), u"FIS_B"_s), ayniyatta);
    }
};

QTEST_GUILESS_MAIN(TstDosyalarArasi)
#include "tst_dosyalar_arasi.moc"
