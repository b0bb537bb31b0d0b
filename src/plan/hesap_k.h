#pragma once

#include "hesap_plani.h"
#include "kart_ekrani.h"

class ListeIzgarasi;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class YukariAsagi;

// "Tek Düzen Hesap Planı": the card of a plan code, the list of the plan
// under a code or a name filter, numeric stepping through the main codes and
// the printed list.
class HESAP_K : public KartEkrani
{
    Q_OBJECT

public:
    explicit HESAP_K(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    void Kaydet();
    // Brings the name of the code on screen and refreshes the list.
    void Getir();
    // Deletes the code on screen after asking.
    void Sil();
    void Temizle();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    void Listele();
    void Adimla(HesapPlani::Adim adim);
    // A row of the list brought to the card.
    void SatirGetir(int satir);
    void Yaz();

    QGroupBox* Frame1;
    QLineEdit* HesapKod;
    QLineEdit* HesapAd;
    YukariAsagi* BT;
    QToolButton* BTYukari;
    QToolButton* BTAsagi;
    QPushButton* Command1;
    QLineEdit* HesapKod1;
    QLineEdit* HesapAd1;
    QRadioButton* Op1;
    QRadioButton* Op2;
    ListeIzgarasi* T;
    QRadioButton* OpYat;
    QRadioButton* OpDik;
    QLineEdit* YaziBoy;
    QPushButton* c2;
    QPushButton* CmdYaz;
    QPushButton* c3;
    QPushButton* c1;
    QPushButton* c5;
    QPushButton* c9;
};
