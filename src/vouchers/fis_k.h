#pragma once

#include "fis_kayit.h"
#include "fis_satir.h"
#include "kart_ekrani.h"
#include "malzeme_alici.h"
#include "sinif_alici.h"

#include <QPointer>
#include <QVariantMap>

#include <functional>

class FIS_L;
class ListeIzgarasi;
class Malzeme_L;
class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class SayfaEkrani;
class SatirGirisi;
class SatirIzgarasi;
class SinifTani;
class QStringListModel;
struct FisYazimi;

// "Fiş Giriş-Düzeltme": the voucher typed from the keyboard, a head of boxes
// over a grid of lines. A line box, a date editor or a combo stands over the
// grid's current cell and sends its value back; the keys between them are
// the screen's.
class FIS_K : public KartEkrani, public SinifAlici, public MalzemeAlici
{
    Q_OBJECT

public:
    explicit FIS_K(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // The menu's mode values by control name: "ilk1" ("1" proposes a number
    // at the next activation), "FCins", "Hangi", "Label2", and "CikisGizle"
    // (true hides what an issue voucher lacks, for good).
    void KipAyarla(const QVariantMap& kip);

    void Kaydet();
    // Fetches the head and its lines; an unknown number empties the screen.
    // True when the voucher exists.
    bool Getir();
    // Deletes the voucher on screen after asking.
    void Sil();
    // Proposes the next number of the kind in the working year.
    void EnSon();
    // Empties the screen for a new voucher; the number stays.
    void Temizle();

    void SinifListesiYenile() override;
    void SinifAl(const QString& hesapKod, const QString& malzAdi, const QString& birimi,
                 const QString& kdv) override;
    void OdakAl() override;
    void MalzemeAl(const QString& malzAdi, const QString& ozellik, const QString& hesapKod,
                   const QString& birimFiyat, const QString& birimi, const QString& kdv, const QString& gelen,
                   const QString& cikan, const QString& kalan) override;

protected:
    bool event(QEvent* olay) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    FisEkrani Ekran() const;
    void BasYaz(const FisEkrani& fis);
    // Runs a database step under the busy cursor; on failure the status line
    // shows the given text (if any) and the error is shown.
    bool Dene(const std::function<void()>& is, const QString& basarisiz = QString());
    // The material list by the current column: F10, or the button, which
    // leaves columns 0 and 2 alone and opens it for viewing only from 4 on.
    void MalzemeListesiAc(bool dugme);

    // The running totals under the grid.
    void AraToplam();
    // The VAT total; empty rates of counted lines become 18 in the grid.
    void KdvToplam();
    // What the print screens take from the screen as it stands.
    FisYazimi Yazim() const;
    void YazimEkraniAc(const std::function<SayfaEkrani*()>& yeni);
    void FisYazdir();
    void ZimmetYazdir();
    void IstekYazdir();

    // The rate box beside the price cell, which folds the VAT into the price.
    void kdvORAN2();
    void KdvOranEnter();
    void KdvOranGizle();

    void Etkinlesti();
    void GridHazirla();
    void SatirlariGetir();
    void Urunler();
    void Yeni();
    // Page Up, Page Down and the arrows of BT.
    void Adim(int fark, bool satirlarda);

    QString Hucre(int sutun) const;
    void HucreYaz(int sutun, const QString& metin);
    void HucreDegisti(int satir, int sutun);

    bool BasTusu(QWidget* kutu, QKeyEvent* olay);
    bool FisNoTusu(QKeyEvent* olay);
    void EscTusu(QObject* nesne);

    void MalzAdGetir();
    void ListedenSecildi(int sutun, int sira, const QString& oge);
    void HesKodSecildi(const QString& oge);
    void Detay3Secildi(const QString& ad);
    void UniteAdSecildi(const QString& ad);

    void SinifEkraniAc();

    void Command6Komutu();
    void HareketGoster(const FisSatir::HareketListesi& liste);
    void L3Kapat();
    void HareketYazdir();

    // Liste: the list of the vouchers of the kind, one while it is open.
    void ListeAc();

    QString ilk1;
    QString FCins;
    QString Hangi;
    // Names the grid does not show, by row from the last fetch: a deleted
    // row does not shift them.
    QStringList m_sinifAdlari;
    QStringList m_islemAdlari;
    QStringList m_uniteAdlari;
    // The unit name and the VAT total the print screens are handed.
    QString UniteAd2;
    QString KDVTOP;
    QPointer<SinifTani> m_sinif;
    QPointer<Malzeme_L> m_malzeme;
    QPointer<FIS_L> m_liste;

    QLabel* Label2;
    QLineEdit* FisNo;
    QWidget* BT;
    QToolButton* BTYukari;
    QToolButton* BTAsagi;
    QLineEdit* Tarih;
    QLabel* Label16;
    QLineEdit* KabulTarih;
    QLabel* Label7;
    QLineEdit* KabulSayi;
    QComboBox* TeslimAlan;
    QComboBox* BelgeTur;
    QLineEdit* BelgeSayi;
    QLabel* Label23;
    QComboBox* NeredenGeldigi;
    QPushButton* Command7;
    QLabel* Label11;
    QLabel* Label15;
    // The lists of the combo columns.
    QStringListModel* m_hesKodlari;
    QStringListModel* m_sinifListesi;
    QStringListModel* m_uniteListesi;
    QStringListModel* m_islemTurleri;
    SatirIzgarasi* T;
    SatirGirisi* m_giris;
    ListeIzgarasi* L3;
    QLabel* Label13;
    QLabel* Label19;
    QLabel* Label20;
    QLineEdit* Gelen;
    QLineEdit* Cikan;
    QLineEdit* Kalan;
    QLineEdit* GelenTop1;
    QLineEdit* CikanTop1;
    QLineEdit* KalanTop1;
    QLabel* TopEleGecen;
    QLineEdit* Text1;
    QLineEdit* Text2;
    QLineEdit* Text3;
    QLineEdit* lblMahsup;
    QLineEdit* KDVOran;
    QLabel* Label10;
    QLabel* Label9;
    QPushButton* cd2;
    QPushButton* Cd4;
    QPushButton* cd5;
    QPushButton* Command2;
    QPushButton* CmdKDVEkle;
    QPushButton* Cyaz2;
    QPushButton* Command8;
    QPushButton* Command6;
    QPushButton* cd3;
    QPushButton* Cmd9;
    QPushButton* Liste;
    QPushButton* Zimmet;
    QPushButton* cd8;
};
