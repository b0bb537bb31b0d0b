#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

// The login. It ends on the last character of the password, in either
// spelling, without Enter; "Tamam" says so when the text is wrong.
class Parola : public QDialog
{
    Q_OBJECT

public:
    explicit Parola(const QStringList& yazimlar, QWidget* ebeveyn = nullptr);

    QLineEdit* Ad1;
    QLineEdit* ParolaKutusu;  // the control named Parola
    QPushButton* c1;
    QPushButton* c2;

protected:
    void showEvent(QShowEvent* olay) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    void Karsilastir();
    void c1_Click();

    QStringList m_yazimlar;
};
