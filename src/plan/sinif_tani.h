#pragma once

#include "hesap_plani.h"
#include "kart_ekrani.h"

#include <functional>

class ListeIzgarasi;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class YukariAsagi;
class SinifAlici;

// "Malzeme Sınıf Tanımlama": the material classes of URUN_K. Clicking down
// the plan (main code, level 1, level 2) proposes the next free class code;
// the card, a list under three filters, and the tidying of classes brought
// over from the earlier version without a code.
class SinifTani : public KartEkrani
{
    Q_OBJECT

public:
    explicit SinifTani(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // Who opened the screen, set right after opening: "Fis_K2" the voucher
    // screen (a saved class goes back into its line, see AliciSec), "S" the
    // bulk code change (Command2 sends the code back through KodGonder).
    QString Hangi;
    // Called by Command2 with the code on screen while Hangi is "S".
    std::function<void(const QString&)> KodGonder;
    // The screen that takes a saved class while Hangi is "Fis_K2". Not owned:
    // it opens this screen as its child, so it outlives it.
    void AliciSec(SinifAlici* alici) { m_alici = alici; }

    // Inserts or updates the class on screen; false when it could not.
    bool Kaydet();
    void Getir();
    // Deletes the class on screen after a warning.
    void Sil();
    // Deletes the class without a code whose name and old code are on screen,
    // after asking; only while the code box is empty.
    void Sil2();
    // Empties the code, the name and the old code; unit, tax rate, bar code
    // and minimum stock carry over to the next class.
    void Temizle();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    void Listele();
    // What F1 and c2 do after the save.
    void KayitSonu();
    // The status line; the delete message is white on its own ground.
    void DurumYaz(const QString& metin, bool beyaz = false);
    // Runs a read or write under the busy cursor; on failure the status line
    // shows the given text and the error is shown. True when it went through.
    bool Dene(const std::function<void()>& is, const QString& basarisiz = QString());
    void Adim(HesapPlani::Adim adim);
    // T2, T3, T4: a click or a move of the current cell fills the grid below.
    void AnaSecildi(int satir);
    void BirinciSecildi(int satir);
    void IkinciSecildi(int satir, int sutun);
    void ListedenAl(int satir);
    void Yaz();

    SinifAlici* m_alici = nullptr;

    ListeIzgarasi* T2;
    ListeIzgarasi* T3;
    ListeIzgarasi* T4;
    QLineEdit* HesapNo;
    YukariAsagi* BT;
    QToolButton* BTYukari;
    QToolButton* BTAsagi;
    QLineEdit* MalzAdi;
    QLineEdit* Birimi;
    QLineEdit* KDV1;
    QLineEdit* Barkod;
    QLineEdit* Stok;
    QLineEdit* EskiKod;
    QPushButton* c2;
    QPushButton* CmdYaz;
    QPushButton* c3;
    QPushButton* c1;
    QPushButton* c5;
    QPushButton* c9;
    QPushButton* Command2;
    QRadioButton* Opt1;
    QRadioButton* Opt2;
    QRadioButton* Opt3;
    QLineEdit* HesapNo1;
    QLineEdit* MalzemeAd1;
    QLineEdit* EskiKod1;
    ListeIzgarasi* T;
};
