#include "veritabani.h"

#include "sema.h"
#include "sql_islevleri.h"
#include "veri_klasoru.h"

#include <QAtomicInt>
#include <QFile>
#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlRecord>

#include <sqlite3.h>

QString DosyaAdi(Dosya dosya)
{
    switch (dosya) {
    case Dosya::Genel: return QStringLiteral("GENEL.MDB");
    case Dosya::Ayniyat: return QStringLiteral("AYNIYAT.MDB");
    case Dosya::HesapKod: return QStringLiteral("HESAPKOD.MDB");
    case Dosya::Okul: return QStringLiteral("OKUL.MDB");
    case Dosya::Sirket: return QStringLiteral("Sirket.dat");
    }
    return {};
}

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

Veritabani::Veritabani(const QString& klasor, Dosya dosya)
    : m_yol(VeriKlasoru::DosyaYolu(klasor, DosyaAdi(dosya))), m_ad(yeniBaglantiAdi()), m_dosya(dosya)
{
    const bool yeni = !QFileInfo::exists(m_yol) || !sqliteBasligiVar(m_yol);
    Ac(yeni);
}

Veritabani::Veritabani(const QString& yol)
    : m_yol(yol), m_ad(yeniBaglantiAdi()), m_dosya(Dosya::Genel)
{
    if (!QFileInfo::exists(m_yol))
        throw VeriHatasi(QStringLiteral("\"%1\" dosyası bulunamadı.").arg(m_yol));
    if (!sqliteBasligiVar(m_yol))
        throw VeriHatasi(yabanciDosya(m_yol));
    Ac(false);
}

void Veritabani::Ac(bool yeni)
{
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_ad);
        db.setDatabaseName(m_yol);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
        if (!db.open()) {
            const QString hata = db.lastError().text();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_ad);
            throw VeriHatasi(QStringLiteral("\"%1\" açılamadı: %2").arg(m_yol, hata));
        }
    }
    try {
        SqlIslevleri::Kaydet(Baglanti());
        Calistir(QStringLiteral("PRAGMA synchronous = FULL"));
        if (yeni) {
            Islem islem(*this);
            Calistir(QStringLiteral("PRAGMA application_id = %1").arg(Sema::UygulamaKimligi));
            Sema::Tamamla(*this, m_dosya);
            Sema::TeslimSatirlari(*this, m_dosya);
            islem.Onayla();
        } else {
            QSqlQuery kimlik = Sorgu(QStringLiteral("PRAGMA application_id"));
            if (!kimlik.next() || kimlik.value(0).toInt() != Sema::UygulamaKimligi)
                throw VeriHatasi(yabanciDosya(m_yol));
        }
    } catch (...) {
        QSqlDatabase::database(m_ad, false).close();
        QSqlDatabase::removeDatabase(m_ad);
        throw;
    }
}

Veritabani::~Veritabani()
{
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

VeriHatasi sorguHatasi(const QString& dosya, const QSqlQuery& sorgu)
{
    return VeriHatasi(QStringLiteral("Veri tabanı hatası (%1): %2").arg(dosya, sorgu.lastError().text()));
}

}

QSqlQuery Veritabani::Sorgu(const QString& sql, const QVariantList& degerler)
{
    QSqlQuery sorgu(Baglanti());
    sorgu.setForwardOnly(true);
    if (!sorgu.prepare(sql))
        throw sorguHatasi(QFileInfo(m_yol).fileName(), sorgu);
    bagla(sorgu, degerler);
    if (!sorgu.exec())
        throw sorguHatasi(QFileInfo(m_yol).fileName(), sorgu);
    return sorgu;
}

HazirKomut::HazirKomut(Veritabani& vt, const QString& sql)
    : m_dosya(QFileInfo(vt.Yol()).fileName()), m_sorgu(vt.Baglanti())
{
    m_sorgu.setForwardOnly(true);
    if (!m_sorgu.prepare(sql))
        throw sorguHatasi(m_dosya, m_sorgu);
}

QSqlQuery& HazirKomut::Calistir(const QVariantList& degerler)
{
    bagla(m_sorgu, degerler);
    if (!m_sorgu.exec())
        throw sorguHatasi(m_dosya, m_sorgu);
    return m_sorgu;
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
    m_vt.Calistir(m_ic ? QStringLiteral("SAVEPOINT islem") : QStringLiteral("BEGIN IMMEDIATE"));
}

Islem::~Islem()
{
    if (m_acik) {
        try {
            if (m_ic) {
                m_vt.Calistir(QStringLiteral("ROLLBACK TO islem"));
                m_vt.Calistir(QStringLiteral("RELEASE islem"));
            } else {
                m_vt.Calistir(QStringLiteral("ROLLBACK"));
            }
        } catch (const VeriHatasi&) {
            // Nothing more can be done; the engine drops the open transaction
            // when the connection closes.
        }
    }
}

void Islem::Onayla()
{
    m_vt.Calistir(m_ic ? QStringLiteral("RELEASE islem") : QStringLiteral("COMMIT"));
    m_acik = false;
}
