#include "sema.h"
#include "sql_islevleri.h"
#include "veritabani.h"

#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QTemporaryDir>
#include <QtTest>

class TstSema : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_tmp;

    QString klasor() const { return m_tmp->path(); }
    QString yol() const { return m_tmp->filePath(QStringLiteral("GENEL.MDB")); }

    static QByteArray icerik(const QString& yol)
    {
        QFile f(yol);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    // A file as an earlier version wrote it: the Turkish collation on its
    // columns and index, user_version 0, the columns in another order and
    // EskiKod not yet there. Row 2 is gone, so rowids have a gap.
    void eskiDosyaYaz(const QList<QVariantList>& urunler, int surum = 0)
    {
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("eski"));
            db.setDatabaseName(yol());
            QVERIFY(db.open());
            SqlIslevleri::Kaydet(db);
            QSqlQuery q(db);
            const QStringList komutlar = {
                QStringLiteral("PRAGMA journal_mode = WAL"),
                QStringLiteral("PRAGMA application_id = %1").arg(UygulamaKimligi),
                QStringLiteral("PRAGMA user_version = %1").arg(surum),
                QStringLiteral("CREATE TABLE URUN_K (MalzAdi TEXT COLLATE TR, HesapKod TEXT COLLATE TR, "
                               "KDV1 TEXT COLLATE TR)"),
                QStringLiteral("CREATE UNIQUE INDEX URUN_K_HesapKod ON URUN_K (HesapKod)"),
            };
            for (const QString& komut : komutlar)
                QVERIFY2(q.exec(komut), qPrintable(q.lastError().text()));
            for (const QVariantList& urun : urunler) {
                QVERIFY(q.prepare(QStringLiteral("insert into URUN_K (MalzAdi, HesapKod, KDV1) values (?, ?, ?)")));
                for (const QVariant& deger : urun)
                    q.addBindValue(deger);
                QVERIFY2(q.exec(), qPrintable(q.lastError().text()));
            }
            QVERIFY(q.exec(QStringLiteral("delete from URUN_K where rowid = 2")));
        }
        QSqlDatabase::removeDatabase(QStringLiteral("eski"));
    }

private slots:
    void init() { m_tmp = std::make_unique<QTemporaryDir>(); }

    void eskiDosyaAcilirkenDonusturulur()
    {
        eskiDosyaYaz({{QStringLiteral("Işık"), QStringLiteral("150 01 01 001"), QStringLiteral("20")},
                      {QStringLiteral("silinen"), QStringLiteral("150 01 01 002"), QString()},
                      {QStringLiteral("ılık"), QStringLiteral("150 01 01 003"), QStringLiteral("10")},
                      {QStringLiteral("şişe"), QStringLiteral("255 01 01 001"), QStringLiteral("")}});
        Veritabani vt(yol());
        Sema::Guncelle(vt);
        QCOMPARE(vt.Satirlar(QStringLiteral("select rowid, HesapKod, MalzAdi, KDV1, EskiKod is null from URUN_K "
                                            "order by rowid")),
                 (QList<QStringList>{{"1", "150 01 01 001", "Işık", "20", "1"},
                                     {"3", "150 01 01 003", "ılık", "10", "1"},
                                     {"4", "255 01 01 001", "şişe", "", "1"}}));
        QCOMPARE(vt.Satirlar(QStringLiteral("select name from sqlite_schema where type = 'index' order by name")),
                 (QList<QStringList>{{"URUN_K_HesapKod"}, {"URUN_K_MalzAdi"}}));
        QCOMPARE(vt.Satirlar(QStringLiteral("select count(*) from sqlite_schema where instr(sql, 'COLLATE TR')")),
                 (QList<QStringList>{{"0"}}));
        QCOMPARE(vt.Satirlar(QStringLiteral("PRAGMA user_version")), (QList<QStringList>{{"1"}}));
        QVERIFY(!QFile::exists(yol() + QStringLiteral(".eski")));
    }

    // Codes that the Turkish order told apart (I is the capital of ı) and
    // NOCASE does not cannot share the unique index: the whole change is
    // undone. A file from a newer version is not touched at all.
    void donusturulemeyenDosyaOlduguGibiKalir_data()
    {
        QTest::addColumn<QList<QVariantList>>("urunler");
        QTest::addColumn<int>("surum");
        QTest::addColumn<QString>("mesaj");
        const QList<QVariantList> ayni = {{QStringLiteral("Kalem"), QStringLiteral("150 I"), QStringLiteral("20")},
                                          {QStringLiteral("silinen"), QStringLiteral("150 01"), QString()},
                                          {QStringLiteral("Silgi"), QStringLiteral("150 i"), QStringLiteral("20")}};
        QTest::newRow("NOCASE altında çakışan kodlar") << ayni << 0 << QStringLiteral("dönüştürülemedi");
        QTest::newRow("daha yeni sürüm") << QList<QVariantList>{} << Sema::Surum + 1
                                         << QStringLiteral("daha yeni bir sürümüyle");
    }
    void donusturulemeyenDosyaOlduguGibiKalir()
    {
        QFETCH(QList<QVariantList>, urunler);
        QFETCH(int, surum);
        QFETCH(QString, mesaj);
        eskiDosyaYaz(urunler, surum);
        const QByteArray once = icerik(yol());
        QVERIFY(!once.isEmpty());
        try {
            Veritabani vt(yol());
            Sema::Guncelle(vt);
            QFAIL("dosya dönüştürüldü");
        } catch (const VeriHatasi& h) {
            QVERIFY2(h.Mesaj().contains(mesaj) && h.Mesaj().contains(QStringLiteral("GENEL.MDB")),
                     qPrintable(h.Mesaj()));
        }
        QVERIFY(icerik(yol()) == once);
        QCOMPARE(QDir(klasor()).entryList(QDir::Files), QStringList{QStringLiteral("GENEL.MDB")});
    }
};

QTEST_GUILESS_MAIN(TstSema)
#include "tst_sema.moc"
