#pragma once

// The count minutes of sayim_tutanak.h and their paper
// (sayim_tutanak_kagidi.h) on the report frame; the filter boxes' lists
// from rapor_listeleri.h.

#include "rapor_ekrani.h"
#include "rapor_listeleri.h"
#include "rapor_suzgeci.h"

#include <QDate>

#include <utility>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class TarihSecici;

// The count minutes TMY-12: every class with lines in the period and its
// book stock, the whole list at once.
class SayimTutanak : public RaporEkrani
{
    Q_OBJECT

public:
    explicit SayimTutanak(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // The menu tells the form its use: the opening dates of that side (the
    // menu's "D" runs from 01.01.1900), then the list.
    void HangiYaz(const QString& hangi);
    // The list from the panel's filters.
    void Toplu() override;

protected:
    RaporKagidi Kagit() const override;
    QStringList Etiketler() const override;
    // F5: only the class named in the header block (the last one) again.
    void Command3Calistir() override;

private:
    RaporSuzgeci Suzgec() const;
    // Command16: every filter emptied, the list of all classes again.
    void YenidenListe();
    // The boxes that fill their lists when they get the focus.
    void ListeleriDoldur(QComboBox* kutu) override;


    QString m_hangi = QStringLiteral("D");
    // F5's class, kept until Command16.
    QString m_sinif;
    // The dates of the last list: leaving a date box changed runs a new one.
    QList<RaporListeleri::KodAd> m_uniteler;

    QComboBox* HesapKod5;
    QComboBox* HesapKod6;
    QComboBox* TekMalzeme;
    QLineEdit* AmbarNo;
    QCheckBox* Check2;
    QComboBox* UniteAd;
    QComboBox* KimeVerildigi;
    QPushButton* Command16;
};
