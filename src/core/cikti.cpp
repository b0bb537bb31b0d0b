#include "cikti.h"

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
    QPdfWriter yazar(m_dosya);
    const double kenar = KenarTwip / 20;
    yazar.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                    QMarginsF(kenar, kenar, kenar, kenar), QPageLayout::Point));
    if (!BelgeCiz(yazar, belge))
        throw YaziciHatasi();
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
