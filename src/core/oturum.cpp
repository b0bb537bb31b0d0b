#include "oturum.h"

#include "saat.h"
#include "veri.h"
#include "veri_klasoru.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>

#include <sqlite3.h>

#include <filesystem>

namespace {

// A database file that is not open, with its side files.
void sil(const QString& yol)
{
    for (const char* ek : {"", "-wal", "-shm", "-journal"})
        QFile::remove(yol + QLatin1String(ek));
}

// The copy opens with the plain engine, none of our functions, and passes
// quick_check.
QString denetimHatasi(const QString& yol)
{
    sqlite3* db = nullptr;
    const QByteArray ad = yol.toUtf8();
    QString hata;
    if (sqlite3_open_v2(ad.constData(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        hata = QString::fromUtf8(sqlite3_errmsg(db));
    } else {
        sqlite3_stmt* komut = nullptr;
        if (sqlite3_prepare_v2(db, "pragma quick_check", -1, &komut, nullptr) != SQLITE_OK)
            hata = QString::fromUtf8(sqlite3_errmsg(db));
        else if (sqlite3_step(komut) != SQLITE_ROW)
            hata = QString::fromUtf8(sqlite3_errmsg(db));
        else if (const auto* sonuc = reinterpret_cast<const char*>(sqlite3_column_text(komut, 0));
                 qstrcmp(sonuc, "ok") != 0)
            hata = QString::fromUtf8(sonuc);
        sqlite3_finalize(komut);
    }
    sqlite3_close(db);
    return hata;
}

}

QStringList Oturum::ParolaYazimlari(const QString& klasor)
{
    const QSettings ayarlar(VeriKlasoru::DosyaYolu(klasor, QStringLiteral("ayarlar.ini")), QSettings::IniFormat);
    const QString parola = ayarlar.value(QStringLiteral("Giris/Parola"), QStringLiteral("Z7")).toString();
    const QLocale turkce(QLocale::Turkish, QLocale::Turkey);
    return {turkce.toUpper(parola), turkce.toLower(parola)};
}

QString Oturum::AylikKopya(const QString& klasor)
{
    const QString kaynak = VeriKlasoru::DosyaYolu(klasor, DosyaAdi(Dosya::Ayniyat));
    const QString hedef = VeriKlasoru::DosyaYolu(klasor, VeriKlasoru::AylikKopyaAdi(Saat::Bugun().month()));
    const QString gecici = hedef + QStringLiteral(".yeni");
    sil(gecici);
    try {
        Veritabani vt(kaynak);
        vt.Calistir(QStringLiteral("VACUUM INTO ?"), {gecici});
    } catch (const VeriHatasi& h) {
        sil(gecici);
        throw VeriHatasi(QStringLiteral("Aylık güvenlik kopyası yazılamadı; önceki kopya duruyor.\n") + h.Mesaj());
    }
    const QString hata = denetimHatasi(gecici);
    std::error_code tasima;
    if (hata.isEmpty())
        std::filesystem::rename(gecici.toStdU16String(), hedef.toStdU16String(), tasima);
    if (!hata.isEmpty() || tasima) {
        sil(gecici);
        throw VeriHatasi(QStringLiteral("Aylık güvenlik kopyası yazılamadı; önceki kopya duruyor.\n%1")
                             .arg(hata.isEmpty() ? QString::fromLocal8Bit(tasima.message()) : hata));
    }
    return hedef;
}

CalismaBaglami Oturum::MenuBaglami(Veri& veri)
{
    CalismaBaglami baglam;
    baglam.Veriler = &veri;
    try {
        QSqlQuery q = veri.Genel().Sorgu(
            QStringLiteral("Select KurumAdi, CalisAy, CalisYil from Sabit Where Anahtar = 1 "));
        if (q.next()) {
            baglam.Baslik = q.value(0).toString();
            baglam.CalisAy = q.value(1).toString();
            baglam.CalisYil = q.value(2).toString();
        }
    } catch (const VeriHatasi&) {
        // A missing or unreadable row gives the empty menu, without a word.
    }
    return baglam;
}
