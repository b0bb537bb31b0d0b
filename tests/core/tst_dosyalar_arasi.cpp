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

    void yarimKalanYazmaSonrakiAcilistaGeriAlinir()
    {
        QTemporaryDir tmp;
        {
            Veri veri(tmp.path());
            DosyalarArasi::Kaydet(veri.Genel(), u"Deneme"_s, {{Dosya::Ayniyat, u"delete from FIS_B"_s, {}}});
            veri.Ayniyat().Calistir(u"insert into FIS_B (FisNo, FCins) values (1, 'G')"_s);
            // The run ends here, before GENEL.MDB's part.
        }
        Veri veri(tmp.path());
        QCOMPARE(veri.Tamamlananlar(), QStringList{u"Yarım kalan işlem geri alındı: Deneme"_s});
        QCOMPARE(sayi(veri.Ayniyat(), u"FIS_B"_s), 0);
        QCOMPARE(sayi(veri.Genel(), u"BEKLEYEN"_s), 0);
        QVERIFY(Veri(tmp.path()).Tamamlananlar().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstDosyalarArasi)
#include "tst_dosyalar_arasi.moc"
