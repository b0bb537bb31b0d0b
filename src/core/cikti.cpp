#include "cikti.h"

#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

#include <filesystem>

void BellekCikti::Yaz(const Belge& belge)
{
    belgeler.append(belge);
}

PdfCikti::PdfCikti(const QString& dosya)
    : m_dosya(dosya)
{
}

void PdfCikti::Yaz(const Belge& belge)
{
    // Written under a name of its own beside the target and checked as it
    // lies on disk, since the painter reports no write error; then renamed
    // over the target in one step, so a full disk leaves the old file, or
    // none, never half of one.
    QTemporaryFile gecici(m_dosya + QStringLiteral(".XXXXXX"));
    const auto yazilamadi = [this](const QString& neden) {
        return YaziciHatasi(QStringLiteral("\"%1\" yazılamadı (%2). Diskte yer ve klasörde yazma izni olduğunu "
                                           "denetleyiniz.")
                                .arg(m_dosya, neden));
    };
    if (!gecici.open())
        throw yazilamadi(gecici.errorString());
    {
        QPdfWriter yazar(&gecici);
        const double kenar = KenarTwip / 20;
        yazar.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                        QMarginsF(kenar, kenar, kenar, kenar), QPageLayout::Point));
        if (!BelgeCiz(yazar, belge))
            throw YaziciHatasi();
    }
    gecici.close();
    if (gecici.error() != QFileDevice::NoError || !PdfTamam(gecici.fileName()))
        throw yazilamadi(QStringLiteral("belge eksik kaldı"));
    std::error_code hata;
    std::filesystem::rename(gecici.fileName().toStdU16String(), m_dosya.toStdU16String(), hata);
    if (hata)
        throw yazilamadi(QString::fromLocal8Bit(hata.message()));
    gecici.setAutoRemove(false);
}

bool PdfTamam(const QString& dosya)
{
    QFile f(dosya);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray icerik = f.readAll();
    return icerik.startsWith("%PDF-") && icerik.trimmed().endsWith("%%EOF");
}

bool BelgeCiz(QPagedPaintDevice& cihaz, const Belge& belge)
{
    if (belge.isEmpty())
        return true;
    cihaz.setPageSize(QPageSize(QPageSize::A4));
    cihaz.setPageOrientation(belge.first().yon);
    QPainter ressam;
    if (!ressam.begin(&cihaz))
        return false;
    for (qsizetype i = 0; i < belge.size(); ++i) {
        if (i > 0) {
            cihaz.setPageOrientation(belge[i].yon);
            if (!cihaz.newPage())
                return false;
        }
        ressam.setTransform(QTransform::fromScale(cihaz.logicalDpiX() / TwipInc,
                                                  cihaz.logicalDpiY() / TwipInc));
        SayfaCiz(ressam, belge[i]);
    }
    return ressam.end();
}
