#include "parola.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

Parola::Parola(const QStringList& yazimlar, QWidget* ebeveyn)
    : QDialog(ebeveyn), Ad1(new QLineEdit(this)), ParolaKutusu(new QLineEdit(this)),
      c1(new QPushButton(QStringLiteral("Tamam"), this)), c2(new QPushButton(QStringLiteral("Çıkış"), this)),
      m_yazimlar(yazimlar)
{
    setWindowTitle(QStringLiteral("Kullanıcı Parola"));
    Ad1->setObjectName(QStringLiteral("Ad1"));
    ParolaKutusu->setObjectName(QStringLiteral("Parola"));
    ParolaKutusu->setEchoMode(QLineEdit::Password);
    c1->setObjectName(QStringLiteral("c1"));
    c2->setObjectName(QStringLiteral("c2"));
    c1->setAutoDefault(false);
    c2->setAutoDefault(false);

    auto* adEtiket = new QLabel(QStringLiteral("  Kullanıcı Adı"), this);
    auto* Label2 = new QLabel(QStringLiteral("  Parola"), this);
    Label2->setObjectName(QStringLiteral("Label2"));
    auto* surum1 = new QLabel(QStringLiteral("Mevcutron 5.1"), this);
    auto* surum2 = new QLabel(QStringLiteral("Mevcutron 5.2"), this);

    auto* izgara = new QGridLayout(this);
    izgara->addWidget(adEtiket, 0, 0);
    izgara->addWidget(Ad1, 0, 1, 1, 2);
    izgara->addWidget(Label2, 1, 0);
    izgara->addWidget(ParolaKutusu, 1, 1, 1, 2);
    izgara->addWidget(c1, 2, 1);
    izgara->addWidget(c2, 2, 2);
    izgara->addWidget(surum1, 3, 0);
    izgara->addWidget(surum2, 3, 2, Qt::AlignRight);
    setTabOrder(Ad1, ParolaKutusu);
    setTabOrder(ParolaKutusu, c1);
    setTabOrder(c1, c2);

    Ad1->installEventFilter(this);
    connect(ParolaKutusu, &QLineEdit::textChanged, this, &Parola::Karsilastir);
    connect(c1, &QPushButton::clicked, this, &Parola::c1_Click);
    connect(c2, &QPushButton::clicked, this, &QDialog::reject);
}

void Parola::showEvent(QShowEvent* olay)
{
    QDialog::showEvent(olay);
    ParolaKutusu->setFocus();
}

bool Parola::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == Ad1 && olay->type() == QEvent::KeyPress) {
        const int tus = static_cast<QKeyEvent*>(olay)->key();
        if (tus == Qt::Key_Return || tus == Qt::Key_Enter) {
            ParolaKutusu->setFocus();
            return true;
        }
    }
    return QDialog::eventFilter(nesne, olay);
}

void Parola::Karsilastir()
{
    if (m_yazimlar.contains(ParolaKutusu->text()))
        accept();
}

void Parola::c1_Click()
{
    if (m_yazimlar.contains(ParolaKutusu->text())) {
        accept();
        return;
    }
    QMessageBox kutu(QMessageBox::NoIcon, windowTitle(), QStringLiteral("Yanlış Kullanıcı Adı veya Parola."),
                     QMessageBox::NoButton, this);
    kutu.addButton(QStringLiteral("Tamam"), QMessageBox::AcceptRole);
    kutu.exec();
}
