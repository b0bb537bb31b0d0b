#pragma once

// The count and inventory table of sayim_cetveli.h on the report frame.

#include "rapor_ekrani.h"
#include "rapor_listeleri.h"
#include "rapor_suzgeci.h"

#include <QDate>

#include <utility>

class QComboBox;
class QPushButton;
class QTableWidget;
class TarihSecici;

// The count and inventory table TMY-13: one row a second-level class, for
// the main account chosen on T2 or for all.
class SayimCetveli : public RaporEkrani
{
    Q_OBJECT

public:
    explicit SayimCetveli(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // The menu opens it with Hangi "D": the records from their beginning,
    // then the table. It opens on the working year.
    void HangiYaz(const QString& hangi);
    void Toplu();

protected:
    RaporKagidi Kagit() const override;
    QStringList Etiketler() const override;
    // F5: the table once more, as the lines stand now.
    void Command3Calistir() override;

private:
    RaporSuzgeci Suzgec() const;
    // Command16: the account and the first-level code emptied, the table again.
    void YenidenListe();

    bool eventFilter(QObject* nesne, QEvent* olay) override;

    // T2's main account; empty, every class.
    QString m_anaHesap;
    QList<RaporListeleri::KodAd> m_altHesaplar;
    std::pair<QDate, QDate> m_tarihler;

    TarihSecici* Tarih;
    TarihSecici* Tarih1;
    QTableWidget* T2;
    QComboBox* HesapNo4;
    QPushButton* Command16;
};
