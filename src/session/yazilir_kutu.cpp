#include "yazilir_kutu.h"

#include <QComboBox>

QComboBox* YazilirKutu(QWidget* ebeveyn, const QString& ad)
{
    auto* kutu = new QComboBox(ebeveyn);
    kutu->setObjectName(ad);
    kutu->setEditable(true);
    kutu->setInsertPolicy(QComboBox::NoInsert);
    kutu->setCompleter(nullptr);
    return kutu;
}

void ListeDoldur(QComboBox* kutu, const QStringList& ogeler)
{
    const QString metin = kutu->currentText();
    kutu->clear();
    kutu->addItems(ogeler);
    kutu->setEditText(metin);
}
