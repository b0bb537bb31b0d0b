#pragma once

#include "fis_listesi.h"
#include "kart_ekrani.h"

class ListeIzgarasi;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class TarihSecici;

// "Fiş Listesi": the heads of one kind of voucher, filtered and sorted; Enter
// or a double click hands the chosen number back and closes the list.
class FIS_L : public KartEkrani
{
    Q_OBJECT

public:
    FIS_L(const CalismaBaglami& baglam, const QString& fcins, QWidget* parent = nullptr);

    void Guncelle();

signals:
    void FisSecildi(const QString& fisNo, const QString& tarih);

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    FisListesi::Suzgec Suzgec() const;
    void Sec();
    void BoyutDegistir();
    void ListeyiYazdir();

    QString FCins1;
    // The column of the last option with one: Op6 leaves it in force.
    QString m_siraSutunu = QStringLiteral("FisNo");

    QLabel* Label5;
    ListeIzgarasi* T;
    QLabel* Boyut;
    QWidget* m_panel;
    QLineEdit* FisNo;
    QLineEdit* Ozellik;
    QLineEdit* TeslimAlan;
    QLineEdit* Unite;
    QLineEdit* NeredenGeldigi;
    QLineEdit* BelgeSayi;
    TarihSecici* Tarih;
    TarihSecici* Tarih1;
    QRadioButton* Op1;
    QRadioButton* Op2;
    QRadioButton* Op3;
    QRadioButton* Op4;
    QRadioButton* Op5;
    QRadioButton* Op6;
    QRadioButton* Op7;
    QCheckBox* Check1;
    QPushButton* Command12;
};
