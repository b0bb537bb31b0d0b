#include "yukari_asagi.h"

#include <QToolButton>
#include <QVBoxLayout>

YukariAsagi::YukariAsagi(const QWidget* kutu, QWidget* ebeveyn)
    : QWidget(ebeveyn), BTYukari(new QToolButton(this)), BTAsagi(new QToolButton(this))
{
    setObjectName(QStringLiteral("BT"));
    auto* oklar = new QVBoxLayout(this);
    oklar->setContentsMargins(0, 0, 0, 0);
    oklar->setSpacing(0);
    BTYukari->setObjectName(QStringLiteral("BTYukari"));
    BTYukari->setArrowType(Qt::UpArrow);
    BTAsagi->setObjectName(QStringLiteral("BTAsagi"));
    BTAsagi->setArrowType(Qt::DownArrow);
    for (QToolButton* ok : {BTYukari, BTAsagi}) {
        ok->setFixedSize(fontMetrics().averageCharWidth() * 3, kutu->sizeHint().height() / 2);
        ok->setFocusPolicy(Qt::NoFocus);
        oklar->addWidget(ok);
    }
}
