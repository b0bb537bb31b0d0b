#include "ornek_veri.h"
#include "sema.h"
#include "veri.h"
#include "veritabani.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <sqlite3.h>

// The data files are plain SQLite: a connection with none of our functions
// and collations reads every file, table and index.
class TstDuzSqlite : public QObject
{
    Q_OBJECT

    QTemporaryDir m_tmp;

    QString yol(Dosya dosya) const { return QDir(m_tmp.path()).filePath(DosyaAdi(dosya)); }

    // The first column of every row; any error fails the test.
    static void oku(sqlite3* db, const QString& sql, QStringList& sutun)
    {
        sqlite3_stmt* komut = nullptr;
        const QByteArray metin = sql.toUtf8();
        QVERIFY2(sqlite3_prepare_v2(db, metin.constData(), -1, &komut, nullptr) == SQLITE_OK,
                 qPrintable(sql + QStringLiteral(": ") + QString::fromUtf8(sqlite3_errmsg(db))));
        int rc;
        while ((rc = sqlite3_step(komut)) == SQLITE_ROW)
            sutun << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(komut, 0)));
        sqlite3_finalize(komut);
        QVERIFY2(rc == SQLITE_DONE, qPrintable(sql + QStringLiteral(": ") + QString::fromUtf8(sqlite3_errmsg(db))));
    }

private slots:
    void initTestCase()
    {
        Veri veri(m_tmp.path());
        OrnekVeriYaz(veri, 300);
    }

    void herDosyaDuzSqliteIleOkunur()
    {
        for (Dosya dosya : {Dosya::Genel, Dosya::Ayniyat, Dosya::HesapKod, Dosya::Okul, Dosya::Sirket}) {
            sqlite3* db = nullptr;
            QCOMPARE(sqlite3_open_v2(yol(dosya).toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
            const std::unique_ptr<sqlite3, int (*)(sqlite3*)> kapat(db, sqlite3_close);
            QStringList durum;
            oku(db, QStringLiteral("pragma integrity_check"), durum);
            QCOMPARE(durum, QStringList{QStringLiteral("ok")});
            oku(db, QStringLiteral("pragma user_version"), durum);
            QCOMPARE(durum.last(), QString::number(Sema::Surum));
            QStringList tablolar;
            oku(db, QStringLiteral("select name from sqlite_schema where type = 'table'"), tablolar);
            QVERIFY(!tablolar.isEmpty());
            QStringList satirlar;
            for (const QString& tablo : tablolar)
                oku(db, QStringLiteral("select * from \"%1\" order by 1").arg(tablo), satirlar);
            if (dosya == Dosya::Ayniyat) {
                QStringList giris;
                oku(db, QStringLiteral("select count(*) from FIS where FCins='G'"), giris);
                Veritabani vt(yol(Dosya::Ayniyat));
                QCOMPARE(giris, vt.Satirlar(QStringLiteral("select count(*) from FIS where FCins = ?"),
                                            {QStringLiteral("G")})
                                    .value(0));
                QVERIFY(giris.value(0).toInt() > 0);
            }
        }
    }

    void sqliteKabuguDenetler()
    {
        const QString kabuk = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
        if (kabuk.isEmpty())
            QSKIP("sqlite3 kurulu değil");
        QProcess p;
        p.start(kabuk, {yol(Dosya::Ayniyat), QStringLiteral("pragma integrity_check")});
        QVERIFY(p.waitForFinished());
        QCOMPARE(p.readAllStandardError(), QByteArray());
        QCOMPARE(p.readAllStandardOutput(), QByteArray("ok\n"));
    }
};

QTEST_GUILESS_MAIN(TstDuzSqlite)
#include "tst_duz_sqlite.moc"
