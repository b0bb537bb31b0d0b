#include "veri_klasoru.h"

#include "sema.h"
#include "veritabani.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

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

void VeriKlasoru::Hazirla(const QString& klasor)
{
    if (!QDir().mkpath(klasor))
        throw VeriHatasi(QStringLiteral("Veri klasörü oluşturulamadı: %1").arg(klasor));
    // isWritable is not reliable for folders everywhere: try a real file.
    QTemporaryFile deneme(QDir(klasor).filePath(QStringLiteral("yazma-denemesi-XXXXXX")));
    if (!deneme.open())
        throw VeriHatasi(QStringLiteral("Veri klasörüne yazılamıyor: %1").arg(klasor));
    deneme.close();

    for (Dosya dosya : {Dosya::Genel, Dosya::Ayniyat, Dosya::HesapKod, Dosya::Okul, Dosya::Sirket}) {
        Veritabani vt(klasor, dosya);
        Sema::Tamamla(vt, dosya);
    }
}
