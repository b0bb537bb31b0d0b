#pragma once

#include <QStringList>

class QComboBox;
class QWidget;

// A combo that takes typed text as it stands: nothing is added to its list
// and nothing typed is completed, as the old combos behaved.
QComboBox* YazilirKutu(QWidget* ebeveyn, const QString& ad);
// Refills a combo's list; the text typed in it stays.
void ListeDoldur(QComboBox* kutu, const QStringList& ogeler);
