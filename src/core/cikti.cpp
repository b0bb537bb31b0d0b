#include "cikti.h"

#include "kullanici_dosyasi.h"

#include <QPainter>
#include <QPdfWriter>

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
    // Checked as it lies on disk, since the painter reports no write error.
    try {
        KullaniciDosyasi dosya(m_dosya);
        {
            QPdfWriter yazar(&dosya.Gecici());
            const double kenar = KenarTwip / 20;
            yazar.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                            QMarginsF(kenar, kenar, kenar, kenar), QPageLayout::Point));
            if (!BelgeCiz(yazar, belge))
                throw dosya.Yazilamadi(QStringLiteral("belge eksik kaldı"));
        }
        dosya.Gecici().close();
        dosya.Yerlestir(dosya.Gecici().error() == QFileDevice::NoError && PdfTamam(dosya.Gecici().fileName()));
    } catch (const Hata& h) {
        // The printing path drops the document on a printer failure.
        throw YaziciHatasi(h.Mesaj());
    }
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
