#include "cikti_ekran.h"

#include "turkce.h"

#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>

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
            QMessageBox::critical(&pencere, ProgramAdi,
                                  YaziciHatasi().Mesaj());
    });
    pencere.exec();
}
