#include "hata_metni.h"
#include "sema.h"
#include "sql_islevleri.h"
#include "veri_hatasi.h"
#include "veritabani.h"

#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstSema : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_tmp;

    QString yol() const { return m_tmp->filePath(u"GENEL.MDB"_s); }
    static QByteArray icerik(const QString& yol)
    {
        QFile f(yol);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    // A file as an earlier version wrote it: the Turkish collation on its
    // columns and index, user_version 0, the columns in another order and
    // EskiKod not yet there. Row 2 is gone, so rowids have a gap.
    void eskiDosyaYaz(const QList<QStringList>& urunler, int surum = 0)
    {
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"eski"_s);
            db.setDatabaseName(yol());
            QVERIFY(db.open());
            SqlIslevleri::Kaydet(db);
            QSqlQuery q(db);
            for (const QString& komut :
                 {u"PRAGMA journal_mode = WAL"_s, u"PRAGMA application_id = %1"_s.arg(UygulamaKimligi),
                  u"PRAGMA user_version = %1"_s.arg(surum),
                  u"CREATE TABLE URUN_K (MalzAdi TEXT COLLATE TR, HesapKod TEXT COLLATE TR, KDV1 TEXT COLLATE TR)"_s,
                  u"CREATE UNIQUE INDEX URUN_K_HesapKod ON URUN_K (HesapKod)"_s})
                QVERIFY2(q.exec(komut), qPrintable(q.lastError().text()));
            for (const QStringList& urun : urunler) {
                QVERIFY(q.prepare(u"insert into URUN_K (MalzAdi, HesapKod, KDV1) values (?, ?, ?)"_s));
                for (const QString& deger : urun)
                    q.addBindValue(deger);
                QVERIFY2(q.exec(), qPrintable(q.lastError().text()));
            }
            QVERIFY(q.exec(u"delete from URUN_K where rowid = 2"_s));
        }
        QSqlDatabase::removeDatabase(u"eski"_s);
    }

private slots:
    void init() { m_tmp = std::make_unique<QTemporaryDir>(); }

    void eskiDosyaAcilirkenDonusturulur()
    {
        eskiDosyaYaz({{"Işık", "150 01 01 001", "20"}, {"silinen", "150 01 01 002", QString()},
                      {"ılık", "150 01 01 003", "10"}, {"şişe", "255 01 01 001", ""}});
        Veritabani vt(yol());
        Sema::Guncelle(vt);
        QCOMPARE(vt.Satirlar(u"select rowid, HesapKod, MalzAdi, KDV1, EskiKod is null from URUN_K order by rowid"_s),
                 (QList<QStringList>{{"1", "150 01 01 001", "Işık", "20", "1"},
                                     {"3", "150 01 01 003", "ılık", "10", "1"},
                                     {"4", "255 01 01 001", "şişe", "", "1"}}));
        QCOMPARE(vt.Satirlar(u"select name from sqlite_schema where type = 'index' order by name"_s),
                 (QList<QStringList>{{"URUN_K_HesapKod"}, {"URUN_K_MalzAdi"}}));
        QCOMPARE(vt.Satirlar(u"select count(*) from sqlite_schema where instr(sql, 'COLLATE TR')"_s),
                 (QList<QStringList>{{"0"}}));
        QCOMPARE(vt.Satirlar(u"PRAGMA user_version"_s), (QList<QStringList>{{"1"}}));
        QVERIFY(!QFile::exists(yol() + u".eski"_s));
    }

    // Codes that the Turkish order told apart (I is the capital of ı) and
    // NOCASE does not cannot share the unique index: the whole change is
    // undone. A file from a newer version is not touched at all.
    void donusturulemeyenDosyaOlduguGibiKalir_data()
    {
        QTest::addColumn<QList<QStringList>>("urunler");
        QTest::addColumn<int>("surum");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("NOCASE altında çakışan kodlar")
            << QList<QStringList>{{"Kalem", "150 I", "20"}, {"silinen", "150 01", QString()}, {"Silgi", "150 i", "20"}}
            << 0 << u"dönüştürülemedi"_s;
        QTest::newRow("daha yeni sürüm") << QList<QStringList>{} << Sema::Surum + 1 << u"daha yeni bir sürümüyle"_s;
    }
    void donusturulemeyenDosyaOlduguGibiKalir()
    {
        QFETCH(QList<QStringList>, urunler);
        QFETCH(int, surum);
        QFETCH(QString, mesaj);
        eskiDosyaYaz(urunler, surum);
        const QByteArray once = icerik(yol());
        QVERIFY(!once.isEmpty());
        const QString hata = HataMetni<VeriHatasi>([&] {
            Veritabani vt(yol());
            Sema::Guncelle(vt);
        });
        QVERIFY2(hata.contains(mesaj) && hata.contains(u"GENEL.MDB"_s), qPrintable(hata));
        QVERIFY(icerik(yol()) == once);
        QCOMPARE(QDir(m_tmp->path()).entryList(QDir::Files), QStringList{u"GENEL.MDB"_s});
    }
};

QTEST_GUILESS_MAIN(TstSema)
#include "tst_sema.moc"
