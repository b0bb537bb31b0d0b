#pragma once

#include "veri_hatasi.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <map>
#include <memory>

class HazirKomut;
class QSqlError;
struct sqlite3;
struct sqlite3_stmt;

// The application id every file of ours carries in its header.
constexpr int UygulamaKimligi = 0x54534E52;  // "TSNR"

// How a connection meets its file.
enum class Acilis {
    Var,   // an existing file of ours; a missing or foreign one is refused
    Yeni,  // a file that does not exist yet (or is empty), made now
};

// One open connection to one data file, with our SQL functions registered.
// The files of a folder are opened once and held (see Veri); the schema of a
// new file is made by VeriKlasoru, not here.
class Veritabani
{
public:
    explicit Veritabani(const QString& yol, Acilis acilis = Acilis::Var);
    ~Veritabani();
    Veritabani(const Veritabani&) = delete;
    Veritabani& operator=(const Veritabani&) = delete;

    // Prepares, binds the values in order and runs; throws VeriHatasi. A
    // null QString is written as empty text; an empty QVariant as NULL.
    QSqlQuery Sorgu(const QString& sql, const QVariantList& degerler = {});
    // Every row of the query as texts, for the lists.
    QList<QStringList> Satirlar(const QString& sql, const QVariantList& degerler = {});
    // As Sorgu, for statements that change rows; answers the count changed.
    int Calistir(const QString& sql, const QVariantList& degerler = {});
    // The writing statement of this text, prepared once for the life of the
    // connection (a voucher's lines, a transaction's savepoints).
    HazirKomut& Hazir(const QString& sql);

    const QString& Yol() const { return m_yol; }
    QSqlDatabase Baglanti() const;
    // The driver's sqlite3 handle, for the backup API.
    void* Tutamac() const;

private:
    friend class HazirKomut;
    friend class SatirOkuyucu;
    void Ac(bool yeni);
    // The engine's result code turned into what the user can do, the
    // engine's own text after it as the detail.
    VeriHatasi Hata(int kod, const QString& ayrinti) const;
    VeriHatasi Hata(const QSqlError& hata) const;
    VeriHatasi Hata(sqlite3* db) const;

    QString m_yol;
    QString m_ad;
    std::map<QString, std::unique_ptr<HazirKomut>> m_hazirlar;
};

// A writing statement prepared once and run many times with new values,
// straight on the engine (the driver's per-value binding costs more than
// the write itself). Values bind as in Veritabani::Sorgu.
class HazirKomut
{
public:
    HazirKomut(Veritabani& vt, const QString& sql);
    ~HazirKomut();
    HazirKomut(const HazirKomut&) = delete;
    HazirKomut& operator=(const HazirKomut&) = delete;
    // Runs with the values; answers the rows changed; throws VeriHatasi.
    int Calistir(const QVariantList& degerler = {});

private:
    Veritabani& m_vt;
    struct sqlite3_stmt* m_komut = nullptr;
};

// A reading statement run straight on the engine, for the reports that
// read many rows: the driver makes a QVariant of every value, which costs
// more than the row itself. Values bind as in Veritabani::Sorgu. The row's
// columns are read with sqlite3_column_* on Komut().
class SatirOkuyucu
{
public:
    // Prepares, binds and stands before the first row; throws VeriHatasi.
    SatirOkuyucu(Veritabani& vt, const QString& sql, const QVariantList& degerler = {});
    ~SatirOkuyucu();
    SatirOkuyucu(const SatirOkuyucu&) = delete;
    SatirOkuyucu& operator=(const SatirOkuyucu&) = delete;
    // Steps to the next row; false after the last. Throws VeriHatasi.
    bool Sonraki();
    sqlite3_stmt* Komut() const { return m_komut; }

private:
    Veritabani& m_vt;
    sqlite3_stmt* m_komut = nullptr;
};

// Writes that belong together: BEGIN IMMEDIATE now, ROLLBACK unless Onayla
// ran. A failure anywhere leaves the file as it was. Inside a transaction
// already open it is a savepoint of that one, so that a routine that writes
// in one piece can also be part of a larger piece.
class Islem
{
public:
    explicit Islem(Veritabani& vt);
    ~Islem();
    Islem(const Islem&) = delete;
    Islem& operator=(const Islem&) = delete;
    void Onayla();

private:
    Veritabani& m_vt;
    bool m_ic;
    bool m_acik = true;
};
