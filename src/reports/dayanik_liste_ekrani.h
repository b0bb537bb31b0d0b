#pragma once

// The unit lists of dayanik_liste.h and their paper (dayanik_liste_kagidi.h)
// on the report frame; the filter boxes' lists from rapor_listeleri.h.

#include "dayanik_liste.h"
#include "rapor_ekrani.h"

#include <QDate>

#include <utility>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class TarihSecici;

// The durable goods list TMY-8 (Hangi "D") and the unit consumption list
// (Hangi "T"), one unit at a time.
class DayanikListe : public RaporEkrani
{
    Q_OBJECT

public:
    explicit DayanikListe(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // The menu tells the form which list it is before it is shown: the dates
    // of that list, and the walk once the form stands on the screen.
    void HangiYaz(const QString& hangi);
    const QString& Hangi() const { return m_hangi; }
    // The walk over the units from the panel's filters.
    void Toplu() override;

protected:
    RaporKagidi Kagit() const override;
    QStringList Etiketler() const override;
    // F5: the walk again from the unit on screen.
    void Command3Calistir() override;

private:
    // The title and the dates the list of m_hangi opens with.
    void AcilisTarihleri();
    RaporSuzgeci Suzgec() const;
    // Command16: every filter emptied, the walk from the first unit.
    void YenidenListe();
    // The boxes that fill their lists when they get the focus.
    void ListeleriDoldur(QComboBox* kutu) override;


    QString m_hangi = QStringLiteral("D");
    // The unit on screen, and the one F5 asked the walk to start from.
    QString m_birimKod;
    QString m_ilkBirim;
    // The dates of the last walk: leaving a date box changed runs a new one.

    QComboBox* UniteAd1;
    QComboBox* HesapNo4;
    QLineEdit* AmbarNo;
    QCheckBox* Check2;
    QPushButton* Command16;
};
