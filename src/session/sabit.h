#pragma once

#include "kart_ekrani.h"
#include "sabit_kayit.h"

#include <QHash>

class QLineEdit;
class QPushButton;

// "Sabit Bilgiler": the institution's names and codes, the signatories of
// the printed forms, the count committee, the rates and the working period,
// the single row of Sabit.
class Sabit : public KartEkrani
{
    Q_OBJECT

public:
    explicit Sabit(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // Fills the boxes from the row; with no row, offers to start one.
    void Getir();
    void Kaydet();
    // Deletes the row after asking.
    void Sil();
    void Temizle();

signals:
    // After a save, with the texts of the year and month boxes: the menu
    // hands them to the screens it opens from then on.
    void CalismaDegisti(const QString& yil, const QString& ay);

private:
    QLineEdit* kutu(const QString& kontrol) const { return m_kutular.value(kontrol); }
    SabitSatiri Degerler() const;

    QHash<QString, QLineEdit*> m_kutular;  // by control name

    QLineEdit* Anahtar;
    QLineEdit* Muhasebeci1;
    QLineEdit* Muhasebeci2;
    QLineEdit* AyniyatMemuru1;
    QLineEdit* AyniyatMemuru2;
    QLineEdit* SubeMudur1;
    QLineEdit* SubeMudur2;
    QLineEdit* KurumAdi;
    QLineEdit* CalisYil;
    QLineEdit* CalisAy;
    QPushButton* c2;
    QPushButton* Command13;
};
