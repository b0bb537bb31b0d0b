#pragma once

#include "dusum_listesi.h"
#include "kart_ekrani.h"

class Izgara;
class ListeIzgarasi;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class TarihSecici;

// What the two lists of the write-off screen share: the grid, beside it the
// filter boxes, the date frame and the sort options, and the buttons that
// print and close. A list builds its rows when the screen is activated and
// at every change of a control; Enter on a row takes it.
class DusumListeEkrani : public KartEkrani
{
    Q_OBJECT

public:
    virtual void Guncelle() = 0;

protected:
    DusumListeEkrani(const CalismaBaglami& baglam, const QString& baslik, QWidget* parent);

    // A filter box under the panel's last one; it is also read by Suzgec.
    void SuzgecKutusu(QLineEdit*& kutu, const char* ad, const QString& etiket);
    // The date frame, the sort options Op1 upward with these captions, and
    // the buttons, after the filter boxes.
    void PaneliTamamla(const QStringList& secenekler);
    DusumListesi::Suzgec Suzgec() const;

    // The current row, taken by Enter.
    virtual void Getir() = 0;
    // A double click anywhere on the rows' area.
    virtual void CiftTikla() = 0;
    virtual void Yaz(Yazici& p, const Izgara& liste) = 0;

    bool event(QEvent* olay) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

    ListeIzgarasi* T;
    // Above the panel, for a control of the list's own.
    QVBoxLayout* m_yan;
    QWidget* m_panel;
    QLineEdit* FisNo = nullptr;
    QLineEdit* TeslimAlan = nullptr;
    QLineEdit* KomisyonBaskaniAdi = nullptr;
    QLineEdit* MalzAdi = nullptr;
    QLineEdit* Ozellik = nullptr;
    QLineEdit* Unite = nullptr;
    QLineEdit* HesapKod = nullptr;
    TarihSecici* Tarih = nullptr;
    TarihSecici* Tarih1 = nullptr;

private:
    void DegisinceGuncelle();
    void ListeyiYazdir();

    QFormLayout* m_form;
    int m_secenek = 1;
    QPushButton* Command12;
    QPushButton* Command13;
};
