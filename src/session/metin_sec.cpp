#include "metin_sec.h"

#include <QComboBox>
#include <QLineEdit>

void MetinSec(QLineEdit* kutu)
{
    if (kutu)
        kutu->setSelection(0, kutu->text().size());
}

void MetinSec(QComboBox* kutu)
{
    if (kutu)
        MetinSec(kutu->lineEdit());
}
