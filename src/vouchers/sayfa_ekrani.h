#pragma once

#include "kart_ekrani.h"
#include "sayfa.h"

class QBoxLayout;
class QPushButton;
class SayfaGorunumu;

// A printed form shown as a page before it goes to the printer: the page is
// drawn once when the screen opens, shown scrolled in `P`, and copied to the
// printer as it stands by `CmdYaz` (also F2). `c8` and Esc close; on the
// voucher's forms `Command2` puts the scanned form "FisY1.BMP" of the data
// folder under the texts.
class SayfaEkrani : public KartEkrani
{
    Q_OBJECT

public:
    enum class FormResmi { Var, Yok };

    SayfaEkrani(const CalismaBaglami& baglam, const QString& baslik, QWidget* ebeveyn = nullptr,
                FormResmi resim = FormResmi::Var);

    const Sayfa& Goruntu() const { return m_sayfa; }
    // Sends the page to the screen's output as it stands.
    void Yazdir();

    SayfaGorunumu* P;
    QPushButton* CmdYaz;
    QPushButton* c8;
    QPushButton* Command2;  // null without the form picture

protected:
    // Shows the page; again after the screen changed it.
    void SayfaGoster(const Sayfa& sayfa);
    Sayfa& SayfaDegistir() { return m_sayfa; }
    void SayfayiYenile();
    // Where a screen puts controls of its own, beside the buttons.
    QBoxLayout* Arac() const { return m_arac; }

private:
    void ResimYukle();

    Sayfa m_sayfa;
    QBoxLayout* m_arac;
};
