#include "cikti.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>

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

YaziciCikti::YaziciCikti(QPrinter& yazici)
    : m_yazici(yazici)
{
}

bool YaziciCikti::Hazir() const
{
    return m_yazici.isValid();
}

void YaziciCikti::Yaz(const Belge& belge)
{
    if (!BelgeCiz(m_yazici, belge))
        throw YaziciHatasi();
}

OnizlemeCikti::OnizlemeCikti(QWidget* ebeveyn)
    : m_ebeveyn(ebeveyn)
{
}

void OnizlemeCikti::Yaz(const Belge& belge)
{
    QPrinter yazici(QPrinter::HighResolution);
    QPrintPreviewDialog pencere(&yazici, m_ebeveyn);
    QObject::connect(&pencere, &QPrintPreviewDialog::paintRequested, &pencere,
                     [&](QPrinter* hedef) {
        // Only a real printer can fail here; no exception may cross the dialog.
        if (!BelgeCiz(*hedef, belge))
            QMessageBox::critical(&pencere, QGuiApplication::applicationDisplayName(),
                                  YaziciHatasi().Mesaj());
    });
    pencere.exec();
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
