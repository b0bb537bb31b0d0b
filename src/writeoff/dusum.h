#pragma once

#include "dusum_kayit.h"
#include "kart_ekrani.h"

#include <QPointer>

class Dusulen_L;
class Dusum_L1;
class ListeIzgarasi;
class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QStringListModel;
class SatirGirisi;
class SatirIzgarasi;
class TarihSecici;

// "Kayıttan Düşme": a write-off, its commission above and the entry lines it
// takes out of the books in a grid that is walked as the voucher's is.
class Dusum : public KartEkrani
{
    Q_OBJECT

public:
    explicit Dusum(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    void Kaydet();
    // F2: the minutes of the write-off as the screen holds it, with the tax of
    // its rows.
    void TutanakYazdir();
    // Fetches the head and its lines; an unknown number is said and empties
    // the screen.
    void Getir();
    // The marked lines of the number on screen into the grid.
    void Guncelle();
    // Deletes the write-off on screen after asking.
    void Sil();
    // Proposes the next number of the working year.
    void Sonk();
    void Temizle();
    // The class look-ups are read again: a class just defined can be chosen.
    void Urunler();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    DusumEkrani Ekran() const;
    bool Dene(const std::function<void()>& is);
    void GridHazirla();
    void AraToplam();
    void HucreDegisti(int satir, int sutun);
    void Adim(int fark);
    bool FisNoTusu(QKeyEvent* olay);

    // Enter on the code column: the class name of a known code.
    void HesapAdGetir();
    void ListedenSecildi(int sutun, const QString& oge);

    void HareketListesi(const QString& yoksa);
    void L3Kapat();
    void HareketYazdir();
    void MalzemeListesiAc();
    void ListeAc();

    QString Hucre(int sutun) const;
    void HucreYaz(int sutun, const QString& metin);

    QPointer<Dusum_L1> m_malzeme;
    QPointer<Dusulen_L> m_liste;

    QLabel* Label2;
    QLineEdit* FisNo;
    TarihSecici* Tarih;
    QComboBox* KomisyonBaskaniAdi;
    QComboBox* KomisyonBaskaniUnvani;
    QComboBox* UyeAdi;
    QComboBox* UyeUnvani;
    QComboBox* HarcamaYetkilisiAdi;
    QComboBox* HarcamaYetkilisiUnvani;
    QPushButton* Command7;
    QLabel* Label15;
    QStringListModel* m_hesKodlari;
    QStringListModel* m_sinifListesi;
    QStringListModel* m_uniteListesi;
    SatirIzgarasi* T;
    SatirGirisi* m_giris;
    ListeIzgarasi* L3;
    QLineEdit* TxtKisi;
    QLineEdit* Text2;
    QLineEdit* Text3;
    QPushButton* cd2;
    QPushButton* Cd4;
    QPushButton* cd1;
    QPushButton* cd5;
    QPushButton* Command2;
    QPushButton* Cmd9;
    QPushButton* Command8;
    QPushButton* Cc3;
    QPushButton* Command3;
    QPushButton* Command6;
    QPushButton* cd8;
};
