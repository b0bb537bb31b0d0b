#pragma once

// The screens HesapCetveli (hesap_cetveli.h) and KesinHesap (kesin_hesap.h)
// on the report frame: the same panel, each with its own table and paper.

#include "rapor_ekrani.h"
#include "rapor_suzgeci.h"

#include <QDate>

#include <utility>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTableWidget;
class TarihSecici;

// What the two screens share: the dates, the four main accounts of T2, the
// store, and the whole table in the list at each Toplu.
class YilDevriEkrani : public RaporEkrani
{
    Q_OBJECT

public:
    // The list from the panel's filters, as the screen is shown and at
    // each change.
    void Toplu() override;

protected:
    // ilkAd is the name of the first account of T2, which differs between
    // the two forms.
    YilDevriEkrani(const CalismaBaglami& baglam, const QString& ilkAd, QWidget* parent);
    // The table of the form for the filters and the main account chosen.
    virtual RaporTablosu Hesapla(const RaporSuzgeci& s, const QString& anaHesap) = 0;
    void Command3Calistir() override;

private:
    RaporSuzgeci Suzgec() const;
    // Command16: the main account and the store emptied, the list again.
    void YenidenListe();

    QString m_anaHesap;
    // The dates of the last run: leaving a date box changed runs a new one.

    QTableWidget* T2;
    QLineEdit* AmbarNo;
    QCheckBox* Check2;
    QLineEdit* Sayma;
    QPushButton* Command16;
};

// The account table TMY-15, class by class and unit by unit.
class HesapCetveli : public YilDevriEkrani
{
    Q_OBJECT

public:
    explicit HesapCetveli(const CalismaBaglami& baglam, QWidget* parent = nullptr);

protected:
    RaporTablosu Hesapla(const RaporSuzgeci& s, const QString& anaHesap) override;
    RaporKagidi Kagit() const override;
    QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const override;
};

// The final account summary TMY-17 for the working year.
class KesinHesap : public YilDevriEkrani
{
    Q_OBJECT

public:
    explicit KesinHesap(const CalismaBaglami& baglam, QWidget* parent = nullptr);

protected:
    RaporTablosu Hesapla(const RaporSuzgeci& s, const QString& anaHesap) override;
    RaporKagidi Kagit() const override;
    QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const override;
};
