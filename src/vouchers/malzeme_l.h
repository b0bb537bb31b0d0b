#pragma once

#include "kart_ekrani.h"

class ListeIzgarasi;
class MalzemeAlici;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

// "Malzeme Liste": the voucher lines over all vouchers, filtered, sorted and
// printed; opened from the voucher screen to pick a material for a line.
class Malzeme_L : public KartEkrani
{
    Q_OBJECT

public:
    explicit Malzeme_L(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // Who takes a picked line; not owned. Picking needs Hangi "Fis_K".
    void AliciSec(MalzemeAlici* alici) { m_alici = alici; }
    // Builds the list anew from the controls.
    void Liste();

    QString Hangi;

    QLineEdit* Tarih;
    QLineEdit* Tarih1;
    QRadioButton* Option5;
    QRadioButton* Option3;
    QRadioButton* Option4;
    QRadioButton* Option2;
    QRadioButton* Option1;
    QCheckBox* HasarCheck;
    QLineEdit* FisNo;
    QLineEdit* BirimFiyat;
    QLineEdit* Unite;
    QLineEdit* KimeVerildigi;
    QLineEdit* Ozellik;
    QLineEdit* HesapKod;
    QComboBox* Ozellik4;
    QComboBox* NeredenGeldigi;
    QRadioButton* Op1;
    QRadioButton* Op2;
    QRadioButton* Op3;
    QRadioButton* Op4;
    QRadioButton* Op5;
    QRadioButton* Op6;
    QRadioButton* Op7;
    QRadioButton* Op8;
    QCheckBox* Check1;
    QLineEdit* YaziBoy;
    ListeIzgarasi* T;
    ListeIzgarasi* T2;

protected:
    bool event(QEvent* olay) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    void DegisinceListe();
    // The class name of the current row and the totals of its description.
    void SatirBilgisi();
    void Sec();
    void Yaz();
    void Boyutlandir();

    MalzemeAlici* m_alici = nullptr;
    QWidget* m_kriterler;
    QLabel* Label5;
    QLabel* Picture1;
    QPushButton* Command12;
    QPushButton* Command8;
    QPushButton* Boyut;
};
