#pragma once

#include "kart_ekrani.h"

class ListeIzgarasi;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class YukariAsagi;

// "Ünite-Birim Tanımlama": the card of a unit, the list of units under two
// lower-bound filters, and stepping through the codes.
class Unite_TANI : public KartEkrani
{
    Q_OBJECT

public:
    explicit Unite_TANI(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    void Guncelle();
    void Kaydet();
    void Getir();
    // Deletes the unit on screen after asking.
    void Sil();
    void Temizle();
    void Temizle2();
    void Sonk();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    // Up and down of BT, Page Down and Page Up of the code.
    void Adim(bool yukari);
    // A row of the list brought to the card.
    void SatirGetir(int satir);
    void Yaz();

    QLineEdit* UniteKod;
    QLineEdit* UniteAd;
    QLineEdit* BiletFiyat;
    YukariAsagi* BT;
    QToolButton* BTYukari;
    QToolButton* BTAsagi;
    QPushButton* c2;
    QPushButton* CmdYaz;
    QPushButton* c1;
    QPushButton* c5;
    QPushButton* c9;
    QLineEdit* UniteKod1;
    QLineEdit* UniteAd1;
    QRadioButton* Op1;
    QRadioButton* Op2;
    ListeIzgarasi* T;
};
