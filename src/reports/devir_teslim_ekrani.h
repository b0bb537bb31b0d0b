#pragma once

// The handover minutes of devir_teslim.h and their paper
// (devir_teslim_kagidi.h) on the report frame, on the panel they share with
// store tracking (depo_takip_ekrani.h).

#include "rapor_ekrani.h"

#include <QSet>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

// The panel of the two lists by description: the period (its start held at
// 01.01.1900), the code range, one description, the store and "Biteni
// Göster".
class OzellikEkrani : public RaporEkrani
{
    Q_OBJECT

public:
    // The list from the panel's filters.
    void Toplu() override;

protected:
    // ozellikHucresi is the list's cell of the description, bosMesaj the
    // message when no line is found.
    OzellikEkrani(const CalismaBaglami& baglam, int ozellikHucresi, const QString& bosMesaj, QWidget* parent);

    virtual RaporTablosu Hesapla(const RaporSuzgeci& s, bool biteniGoster) = 0;
    // The report's own line with the period stands above its headings.
    QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const override;
    // F5: the list again, with what the records hold now.
    void Command3Calistir() override;

private:
    RaporSuzgeci Suzgec() const;
    // Command16: every filter emptied, the whole list again.
    void YenidenListe();
    void ListeleriDoldur(QComboBox* kutu) override;

    int m_ozellikHucresi;
    QString m_bosMesaj;
    // The descriptions listed so far, offered by the box Ozellik.
    QStringList m_adlar;
    QSet<QString> m_adKumesi;

    QComboBox* HesapKod5;
    QComboBox* HesapKod6;
    QComboBox* Ozellik;
    QLineEdit* AmbarNo;
    QCheckBox* Check2;
    QPushButton* Command16;
};

// The store handover minutes TMY-11.
class DevirTeslim : public OzellikEkrani
{
    Q_OBJECT

public:
    explicit DevirTeslim(const CalismaBaglami& baglam, QWidget* parent = nullptr);

protected:
    RaporTablosu Hesapla(const RaporSuzgeci& s, bool biteniGoster) override;
    RaporKagidi Kagit() const override;
};
