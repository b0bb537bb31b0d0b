#include "veri_klasoru.h"

#include "sema.h"
#include "veritabani.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <filesystem>

namespace {

QStringList adlar(const QList<Dosya>& dosyalar)
{
    QStringList liste;
    for (Dosya d : dosyalar)
        liste << DosyaAdi(d);
    return liste;
}

// A file with content; an empty one holds nothing to open.
bool dolu(const QString& yol)
{
    const QFileInfo bilgi(yol);
    return bilgi.exists() && bilgi.size() > 0;
}

// Any data file, or a monthly copy, means the folder holds data.
bool veriVar(const QString& klasor)
{
    const QDir dizin(klasor);
    static const QRegularExpression kopya(QStringLiteral("^AYNIYAT\\d\\d\\.MDB$"),
                                          QRegularExpression::CaseInsensitiveOption);
    for (const QString& ad : dizin.entryList(QDir::Files | QDir::Hidden)) {
        if (kopya.match(ad).hasMatch())
            return true;
        for (Dosya d : VeriDosyalari)
            if (ad.compare(DosyaAdi(d), Qt::CaseInsensitive) == 0)
                return true;
    }
    return false;
}

}

EksikDosyaHatasi::EksikDosyaHatasi(const QString& klasor, const QList<Dosya>& eksikler)
    : VeriHatasi(QStringLiteral("Veri klasöründe %1 bulunamadı ya da boş: %2\n"
                                "Klasörde başka veri dosyaları olduğu için yerine yeni bir dosya "
                                "oluşturulmadı. Dosyayı yedekten geri yükleyiniz ya da veri klasörünü "
                                "denetleyiniz.")
                     .arg(adlar(eksikler).join(QStringLiteral(", ")), QDir::toNativeSeparators(klasor))),
      m_eksikler(eksikler)
{
}

QString VeriKlasoru::Sec(const QString& secenek)
{
    if (!secenek.isEmpty())
        return QDir(secenek).absolutePath();
    const QString ortam = qEnvironmentVariable("TASINIR_VERI");
    if (!ortam.isEmpty())
        return QDir(ortam).absolutePath();
    const QString program = QCoreApplication::applicationDirPath();
    if (!program.isEmpty() && QFileInfo(program).isWritable())
        return program;
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString VeriKlasoru::DosyaYolu(const QString& klasor, const QString& ad)
{
    const QDir dizin(klasor);
    const QStringList adlar = dizin.entryList(QDir::Files | QDir::Hidden);
    for (const QString& var : adlar)
        if (var.compare(ad, Qt::CaseInsensitive) == 0)
            return dizin.filePath(var);
    return dizin.filePath(ad);
}

void VeriKlasoru::Sil(const QString& yol)
{
    for (const char* ek : {"", "-wal", "-shm", "-journal"})
        QFile::remove(yol + QLatin1String(ek));
}

QString VeriKlasoru::AylikKopyaAdi(int ay)
{
    return QStringLiteral("AYNIYAT%1.MDB").arg(ay, 2, 10, QLatin1Char('0'));
}

QList<Dosya> VeriKlasoru::Hazirla(const QString& klasor)
{
    if (!QDir().mkpath(klasor))
        throw VeriHatasi(QStringLiteral("Veri klasörü oluşturulamadı: %1").arg(klasor));
    // isWritable is not reliable for folders everywhere: try a real file.
    QTemporaryFile deneme(QDir(klasor).filePath(QStringLiteral("yazma-denemesi-XXXXXX")));
    if (!deneme.open())
        throw VeriHatasi(QStringLiteral("Veri klasörüne yazılamıyor: %1").arg(klasor));
    deneme.close();

    QList<Dosya> eksikler;
    for (Dosya d : VeriDosyalari)
        if (!dolu(DosyaYolu(klasor, DosyaAdi(d))))
            eksikler << d;
    if (eksikler.isEmpty())
        return {};
    if (veriVar(klasor)) {
        // A file that is there but not ours is named first.
        for (Dosya d : VeriDosyalari)
            if (!eksikler.contains(d))
                Veritabani(DosyaYolu(klasor, DosyaAdi(d)));
        throw EksikDosyaHatasi(klasor, eksikler);
    }
    Olustur(klasor, eksikler);
    return eksikler;
}

void VeriKlasoru::Olustur(const QString& klasor, const QList<Dosya>& dosyalar)
{
    for (Dosya d : dosyalar) {
        const QString hedef = DosyaYolu(klasor, DosyaAdi(d));
        const QString gecici = hedef + QStringLiteral(".yeni");
        Sil(gecici);
        try {
            Veritabani vt(gecici, Acilis::Yeni);
            Islem islem(vt);
            vt.Calistir(QStringLiteral("PRAGMA user_version = %1").arg(Sema::Surum));
            Sema::Tamamla(vt, d);
            Sema::TeslimSatirlari(vt, d);
            islem.Onayla();
        } catch (...) {
            Sil(gecici);
            throw;
        }
        // An empty file in the way holds nothing; replaced in one step.
        std::error_code hata;
        std::filesystem::rename(gecici.toStdU16String(), hedef.toStdU16String(), hata);
        if (hata) {
            Sil(gecici);
            throw VeriHatasi(QStringLiteral("\"%1\" oluşturulamadı: %2")
                                 .arg(QDir::toNativeSeparators(hedef), QString::fromLocal8Bit(hata.message())));
        }
    }
}
