#pragma once

#include <QWidget>

class QToolButton;

// The up-down arrows (BT) beside a number box: two small buttons, one above
// the other, that the keyboard passes by (Page Up and Page Down do their work).
class YukariAsagi : public QWidget
{
    Q_OBJECT

public:
    // Each arrow is half as high as the box beside it.
    YukariAsagi(const QWidget* kutu, QWidget* ebeveyn);

    QToolButton* BTYukari;
    QToolButton* BTAsagi;
};
