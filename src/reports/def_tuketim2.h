#pragma once

// The ledgers of defter.h and their paper (defter_kagidi.h) on the report
// frame; the filter boxes' lists from rapor_listeleri.h.

#include "defter.h"
#include "rapor_ekrani.h"
#include "rapor_listeleri.h"

#include <QDate>

#include <utility>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class TarihSecici;

// The consumables ledger TMY-1 (Hangi "T") and the durable goods ledger
// TMY-2 (Hangi "D"), one material class at a time.
class DefTuketim2 : public RaporEkrani
{
    Q_OBJECT

public:
    explicit DefTuketim2(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // The menu tells the shown form which ledger it is: the opening dates of
    // that ledger, then the walk.
    void HangiYaz(const QString& hangi);
    const QString& Hangi() const { return m_hangi; }
    // The walk over the classes from the panel's filters.
    void Toplu() override;

protected:
    RaporKagidi Kagit() const override;
    QStringList Etiketler() const override;
    void Command3Calistir() override;

private:
    RaporSuzgeci Suzgec() const;
    // The class on screen in the title area.
    void Baslik(const Defter::Sinif& sinif);
    // F4: the next class on the next page, printed.
    void Command1Calistir();
    // Command16: every filter emptied, the walk from the first class.
    void YenidenListe();
    // The boxes that fill their lists when they get the focus.
    void ListeleriDoldur(QComboBox* kutu) override;


    QString m_hangi = QStringLiteral("T");
    // The class on screen, after which F4 and F5 go on.
    QString m_sinifKod;
    QString m_sonrakiSinif;
    // The dates of the last walk: leaving a date box changed runs a new one.
    QList<RaporListeleri::KodAd> m_uniteler;

    QComboBox* HesapKod5;
    QComboBox* HesapKod6;
    QComboBox* TekMalzeme;
    QLineEdit* AmbarNo;
    QCheckBox* Check2;
    QComboBox* UniteAd;
    QComboBox* KimeVerildigi;
    QComboBox* Ozellik;
    QCheckBox* Check1;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QLineEdit* SatirSayi;
    QPushButton* Command16;
    QPushButton* Command1;
};
