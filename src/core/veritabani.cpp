#include "veritabani.h"

#include "sql_islevleri.h"

#include <QAtomicInt>
#include <QFile>
#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlRecord>

#include <sqlite3.h>

namespace {

QString yeniBaglantiAdi()
{
    static QAtomicInt sayac;
    return QStringLiteral("tasinir-%1").arg(sayac.fetchAndAddRelaxed(1));
}

QString yabanciDosya(const QString& yol)
{
    return QStringLiteral("\"%1\" bu programın veri dosyası değil. Dosyaya dokunulmadı; "
                          "veri klasörünü denetleyiniz.")
        .arg(QFileInfo(yol).fileName());
}

// A file of ours begins with SQLite's header. An empty file holds nothing to
// lose and is taken as new.
bool sqliteBasligiVar(const QString& yol)
{
    QFile dosya(yol);
    if (!dosya.open(QIODevice::ReadOnly))
        throw VeriHatasi(QStringLiteral("\"%1\" dosyası açılamadı: %2").arg(yol, dosya.errorString()));
    if (dosya.size() == 0)
        return false;
    const QByteArray baslik = dosya.read(16);
    if (baslik != QByteArray("SQLite format 3\0", 16))
        throw VeriHatasi(yabanciDosya(yol));
    return true;
}

}

Veritabani::Veritabani(const QString& yol, Acilis acilis) : m_yol(yol), m_ad(yeniBaglantiAdi())
{
    const bool var = QFileInfo::exists(m_yol) && sqliteBasligiVar(m_yol);
    if (acilis == Acilis::Var && !var)
        throw VeriHatasi(QFileInfo::exists(m_yol) ? QStringLiteral("\"%1\" dosyası boş.").arg(m_yol)
                                                  : QStringLiteral("\"%1\" dosyası bulunamadı.").arg(m_yol));
    if (acilis == Acilis::Yeni && var)
        throw VeriHatasi(QStringLiteral("\"%1\" dosyası zaten var; üzerine yazılmadı.").arg(m_yol));
    Ac(acilis == Acilis::Yeni);
}

void Veritabani::Ac(bool yeni)
{
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_ad);
        db.setDatabaseName(m_yol);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
        if (!db.open()) {
            const QSqlError hata = db.lastError();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_ad);
            throw Hata(hata);
        }
    }
    try {
        SqlIslevleri::Kaydet(Baglanti());
        // A file that is not ours is not touched, not even by a pragma.
        if (!yeni) {
            QSqlQuery kimlik = Sorgu(QStringLiteral("PRAGMA application_id"));
            if (!kimlik.next() || kimlik.value(0).toInt() != UygulamaKimligi)
                throw VeriHatasi(yabanciDosya(m_yol));
        }
        // Readers never block a writer: a long list still being read on one
        // screen must not stop a save on another.
        Calistir(QStringLiteral("PRAGMA journal_mode = WAL"));
        Calistir(QStringLiteral("PRAGMA synchronous = FULL"));
        // A -wal grown by one large write goes back to this size.
        Calistir(QStringLiteral("PRAGMA journal_size_limit = 4194304"));
        if (yeni)
            Calistir(QStringLiteral("PRAGMA application_id = %1").arg(UygulamaKimligi));
    } catch (...) {
        // A statement still prepared keeps the driver from closing the file.
        m_hazirlar.clear();
        QSqlDatabase::database(m_ad, false).close();
        QSqlDatabase::removeDatabase(m_ad);
        throw;
    }
}

Veritabani::~Veritabani()
{
    m_hazirlar.clear();
    {
        QSqlDatabase db = QSqlDatabase::database(m_ad, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_ad);
}

QSqlDatabase Veritabani::Baglanti() const
{
    return QSqlDatabase::database(m_ad, false);
}

void* Veritabani::Tutamac() const
{
    const QVariant v = Baglanti().driver()->handle();
    if (v.isValid() && qstrcmp(v.typeName(), "sqlite3*") == 0)
        return *static_cast<sqlite3* const*>(v.constData());
    return nullptr;
}

namespace {

// Qt binds a null QString as NULL; our texts are empty text. NULL is written
// only when asked for with an empty QVariant.
void bagla(QSqlQuery& sorgu, const QVariantList& degerler)
{
    for (const QVariant& deger : degerler) {
        if (deger.typeId() == QMetaType::QString && deger.toString().isNull())
            sorgu.addBindValue(QStringLiteral(""));
        else
            sorgu.addBindValue(deger);
    }
}

// What the user can do about the engine's common failures; empty for the
// rest, which only the engine's own text describes.
QString kodunCumlesi(int kod)
{
    switch (kod & 0xFF) {
    case SQLITE_FULL:
        return QStringLiteral("Diskte yer kalmadı; yer açıp yeniden deneyiniz.");
    case SQLITE_READONLY:
        return QStringLiteral("Dosyaya yazılamıyor; dosyanın ve klasörünün yazma iznini denetleyiniz.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("Dosyayı başka bir program ya da pencere kullanıyor; biraz bekleyip yeniden "
                              "deneyiniz.");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return QStringLiteral("Dosya bozulmuş; programı kapatıp dosyayı yedeğinden geri alınız.");
    case SQLITE_IOERR:
        return QStringLiteral("Dosya okunurken ya da yazılırken disk hatası oldu; diski ve bağlantısını "
                              "denetleyip yeniden deneyiniz.");
    case SQLITE_CANTOPEN:
        return QStringLiteral("Dosya açılamadı; yerinde olduğunu ve okunabildiğini denetleyiniz.");
    case SQLITE_CONSTRAINT:
        return QStringLiteral("Kayıt dosyanın bir kuralına uymuyor (aynı anahtar iki kez gibi); kaydı "
                              "denetleyiniz.");
    }
    return {};
}

}

QSqlQuery Veritabani::Sorgu(const QString& sql, const QVariantList& degerler)
{
    QSqlQuery sorgu(Baglanti());
    sorgu.setForwardOnly(true);
    if (!sorgu.prepare(sql))
        throw Hata(sorgu.lastError());
    bagla(sorgu, degerler);
    if (!sorgu.exec())
        throw Hata(sorgu.lastError());
    return sorgu;
}

VeriHatasi Veritabani::Hata(int kod, const QString& ayrinti) const
{
    const QString cumle = kodunCumlesi(kod);
    return VeriHatasi(QStringLiteral("Veri tabanı hatası (%1): %2")
                          .arg(QFileInfo(m_yol).fileName(),
                               cumle.isEmpty() ? ayrinti : QStringLiteral("%1 Ayrıntı: %2").arg(cumle, ayrinti)));
}

VeriHatasi Veritabani::Hata(const QSqlError& hata) const
{
    return Hata(hata.nativeErrorCode().toInt(), hata.text());
}

VeriHatasi Veritabani::Hata(sqlite3* db) const
{
    return Hata(sqlite3_extended_errcode(db), QString::fromUtf8(sqlite3_errmsg(db)));
}

HazirKomut& Veritabani::Hazir(const QString& sql)
{
    auto& yer = m_hazirlar[sql];
    if (!yer)
        yer = std::make_unique<HazirKomut>(*this, sql);
    return *yer;
}

HazirKomut::HazirKomut(Veritabani& vt, const QString& sql) : m_vt(vt)
{
    auto* db = static_cast<sqlite3*>(vt.Tutamac());
    const QByteArray metin = sql.toUtf8();
    if (sqlite3_prepare_v2(db, metin.constData(), int(metin.size()), &m_komut, nullptr) != SQLITE_OK)
        throw vt.Hata(db);
}

HazirKomut::~HazirKomut()
{
    sqlite3_finalize(m_komut);
}

namespace {

// Binds the values in order straight on the engine, as Veritabani::Sorgu
// binds them through the driver; the engine's code of the first failure.
int baglaMotorda(sqlite3_stmt* komut, const QVariantList& degerler)
{
    int sira = 0;
    for (const QVariant& deger : degerler) {
        ++sira;
        int rc;
        switch (deger.typeId()) {
        case QMetaType::UnknownType:
            rc = sqlite3_bind_null(komut, sira);
            break;
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::UInt:
        case QMetaType::Bool:
            rc = sqlite3_bind_int64(komut, sira, deger.toLongLong());
            break;
        case QMetaType::Double:
            rc = sqlite3_bind_double(komut, sira, deger.toDouble());
            break;
        default: {
            // A null text is empty text here too.
            const QByteArray metin = deger.toString().toUtf8();
            rc = sqlite3_bind_text(komut, sira, metin.constData(), int(metin.size()), SQLITE_TRANSIENT);
        }
        }
        if (rc != SQLITE_OK)
            return rc;
    }
    return SQLITE_OK;
}

}

int HazirKomut::Calistir(const QVariantList& degerler)
{
    auto* db = sqlite3_db_handle(m_komut);
    if (baglaMotorda(m_komut, degerler) != SQLITE_OK)
        throw m_vt.Hata(db);
    const int rc = sqlite3_step(m_komut);
    sqlite3_reset(m_komut);
    sqlite3_clear_bindings(m_komut);
    if (rc != SQLITE_DONE && rc != SQLITE_ROW)
        throw m_vt.Hata(db);
    return sqlite3_changes(db);
}

SatirOkuyucu::SatirOkuyucu(Veritabani& vt, const QString& sql, const QVariantList& degerler) : m_vt(vt)
{
    auto* db = static_cast<sqlite3*>(vt.Tutamac());
    const QByteArray metin = sql.toUtf8();
    if (sqlite3_prepare_v2(db, metin.constData(), int(metin.size()), &m_komut, nullptr) != SQLITE_OK)
        throw vt.Hata(db);
    if (baglaMotorda(m_komut, degerler) != SQLITE_OK) {
        const VeriHatasi hata = vt.Hata(db);
        sqlite3_finalize(m_komut);
        throw hata;
    }
}

SatirOkuyucu::~SatirOkuyucu()
{
    sqlite3_finalize(m_komut);
}

bool SatirOkuyucu::Sonraki()
{
    const int rc = sqlite3_step(m_komut);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    throw m_vt.Hata(sqlite3_db_handle(m_komut));
}

QList<QStringList> Veritabani::Satirlar(const QString& sql, const QVariantList& degerler)
{
    QSqlQuery q = Sorgu(sql, degerler);
    const int sutun = q.record().count();
    QList<QStringList> satirlar;
    while (q.next()) {
        QStringList satir;
        satir.reserve(sutun);
        for (int i = 0; i < sutun; ++i)
            satir << q.value(i).toString();
        satirlar << satir;
    }
    return satirlar;
}

int Veritabani::Calistir(const QString& sql, const QVariantList& degerler)
{
    return Sorgu(sql, degerler).numRowsAffected();
}

Islem::Islem(Veritabani& vt)
    : m_vt(vt), m_ic(sqlite3_get_autocommit(static_cast<sqlite3*>(vt.Tutamac())) == 0)
{
    m_vt.Hazir(m_ic ? QStringLiteral("SAVEPOINT islem") : QStringLiteral("BEGIN IMMEDIATE")).Calistir();
}

Islem::~Islem()
{
    if (m_acik) {
        try {
            if (m_ic) {
                m_vt.Hazir(QStringLiteral("ROLLBACK TO islem")).Calistir();
                m_vt.Hazir(QStringLiteral("RELEASE islem")).Calistir();
            } else {
                m_vt.Hazir(QStringLiteral("ROLLBACK")).Calistir();
            }
        } catch (const VeriHatasi&) {
            // Nothing more can be done; the engine drops the open transaction
            // when the connection closes.
        }
    }
}

void Islem::Onayla()
{
    m_vt.Hazir(m_ic ? QStringLiteral("RELEASE islem") : QStringLiteral("COMMIT")).Calistir();
    m_acik = false;
    // The file itself takes the write at once, so that a copy of the .MDB
    // alone holds it and the -wal stays small. A reader still at work only
    // holds part of it back until the next write.
    if (!m_ic)
        sqlite3_wal_checkpoint_v2(static_cast<sqlite3*>(m_vt.Tutamac()), nullptr, SQLITE_CHECKPOINT_PASSIVE,
                                  nullptr, nullptr);
}
