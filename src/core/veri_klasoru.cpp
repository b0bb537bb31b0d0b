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

// New files are built in a folder of their own beside the data, renamed when
// all are complete, then moved in one by one; an opening finishes the move
// or drops a build cut short, so a set of new files comes in whole.
const char* const yapimKlasoru = "olusturuluyor.tmp";
const char* const hazirKlasoru = "olusturuldu.tmp";

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

void yarimKalaniBitir(const QString& klasor)
{
    const QDir dizin(klasor);
    QDir(dizin.filePath(QLatin1String(yapimKlasoru))).removeRecursively();
    const QDir hazir(dizin.filePath(QLatin1String(hazirKlasoru)));
    if (!hazir.exists())
        return;
    for (const QString& ad : hazir.entryList(QDir::Files)) {
        // An empty file in the way holds nothing and is replaced in one
        // step; a file with content (put back by hand meanwhile) stays.
        const QString hedef = VeriKlasoru::DosyaYolu(klasor, ad);
        if (dolu(hedef))
            continue;
        std::error_code hata;
        std::filesystem::rename(hazir.filePath(ad).toStdU16String(), hedef.toStdU16String(), hata);
        if (hata)
            throw VeriHatasi(QStringLiteral("\"%1\" oluşturulamadı: %2")
                                 .arg(QDir::toNativeSeparators(hedef), QString::fromLocal8Bit(hata.message())));
    }
    QDir(hazir).removeRecursively();
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
    yarimKalaniBitir(klasor);

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
    QDir dizin(klasor);
    QDir(dizin.filePath(QLatin1String(yapimKlasoru))).removeRecursively();
    if (!dizin.mkdir(QLatin1String(yapimKlasoru)))
        throw VeriHatasi(QStringLiteral("Veri klasörüne yazılamıyor: %1").arg(QDir::toNativeSeparators(klasor)));
    const QDir yapim(dizin.filePath(QLatin1String(yapimKlasoru)));
    try {
        for (Dosya d : dosyalar) {
            Veritabani vt(yapim.filePath(DosyaAdi(d)), Acilis::Yeni);
            Islem islem(vt);
            vt.Calistir(QStringLiteral("PRAGMA user_version = %1").arg(Sema::Surum));
            Sema::Tamamla(vt, d);
            Sema::TeslimSatirlari(vt, d);
            islem.Onayla();
            // Everything into the file itself before it moves: a -wal left
            // behind (a full disk stops the checkpoint) would stay behind.
            const QString kip = vt.Satirlar(QStringLiteral("PRAGMA journal_mode = DELETE")).value(0).value(0);
            if (kip.compare(QLatin1String("delete"), Qt::CaseInsensitive) != 0)
                throw VeriHatasi(QStringLiteral("\"%1\" oluşturulamadı: dosya diske yazılamadı.").arg(DosyaAdi(d)));
        }
    } catch (...) {
        QDir(yapim).removeRecursively();
        throw;
    }
    // Complete: from here on an opening moves the files in.
    if (!dizin.rename(QLatin1String(yapimKlasoru), QLatin1String(hazirKlasoru))) {
        QDir(yapim).removeRecursively();
        throw VeriHatasi(QStringLiteral("Veri klasörüne yazılamıyor: %1").arg(QDir::toNativeSeparators(klasor)));
    }
    yarimKalaniBitir(klasor);
}
