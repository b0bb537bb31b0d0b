#pragma once

#include "calisma_baglami.h"

#include <QMessageBox>
#include <QWidget>

#include <functional>

class Cikti;
class QLabel;
class Veritabani;
class Yazici;

// What every card screen shares: the working context it was opened with, a
// status line, function keys that act wherever the focus is on the screen,
// Turkish Yes/No questions, a busy cursor, and Esc to close.
class KartEkrani : public QWidget
{
    Q_OBJECT

public:
    explicit KartEkrani(const CalismaBaglami& baglam, QWidget* ebeveyn = nullptr);

    const CalismaBaglami& Baglam() const { return m_baglam; }
    // The status line, shown under the screen's controls.
    QLabel* DurumSatiri() const { return m_durum; }
    // Where the screen's printing goes: the print preview unless another
    // output is chosen (tests keep the pages in memory). Not owned.
    void CiktiSec(Cikti* cikti) { m_cikti = cikti; }

protected:
    // The data files the menu handed over, open for the run.
    Veritabani& Genel() const;
    Veritabani& Ayniyat() const;
    // The screen's own copy of the context, for screens that change it.
    CalismaBaglami& BaglamDegistir() { return m_baglam; }

    void Durum(const QString& metin);
    // Hides the status line until the next Durum, keeping its room so that
    // the screen does not jump.
    void DurumSatiriniGizle();
    // Binds a key (with modifiers) to an action for the whole screen.
    void TusTanimla(QKeySequence tus, std::function<void()> is);
    // Yes/No with Turkish buttons; true on Yes.
    bool Sor(const QString& soru, const QString& baslik = QString(),
             QMessageBox::Icon ikon = QMessageBox::Question);
    void Bildir(const QString& mesaj, const QString& baslik = QString(),
                QMessageBox::Icon ikon = QMessageBox::Information);
    // Runs a command under the busy cursor; an error it raises is shown and
    // the screen goes on.
    void Komut(const std::function<void()>& is);
    // The screen's heading, bold and larger than the rest.
    QLabel* BaslikEtiketi(const QString& ad, const QString& metin);
    // Puts the status line under the given layout's last row.
    void DurumSatiriEkle(class QBoxLayout* yerlesim);
    // Prints through the screen's output; a printer failure shows
    // "Belge yazdırılamıyor.." and drops the document.
    void Yazdir(const std::function<void(Yazici&)>& is);
    // The same for documents that make their own printer on the output.
    void CiktiyaYaz(const std::function<void(Cikti&)>& is);

private:
    CalismaBaglami m_baglam;
    QLabel* m_durum;
    Cikti* m_cikti = nullptr;
};

// Gives a control the name of the form's control, and hands it back.
template <typename Kontrol>
Kontrol* Adli(Kontrol* kontrol, const char* ad)
{
    kontrol->setObjectName(QString::fromLatin1(ad));
    return kontrol;
}

// The busy cursor for as long as it lives.
class MesgulImlec
{
public:
    MesgulImlec();
    ~MesgulImlec();
    MesgulImlec(const MesgulImlec&) = delete;
    MesgulImlec& operator=(const MesgulImlec&) = delete;
};

// Yes/No with Turkish buttons, for windows that are no card screen.
bool EvetHayir(QWidget* ebeveyn, const QString& soru, const QString& baslik,
               QMessageBox::Icon ikon = QMessageBox::Question);
