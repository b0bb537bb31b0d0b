#pragma once

// Answers the message boxes a screen raises while a test drives it.

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <memory>

// Waits for the next modal message box, keeps its text and title, and clicks
// the button with the given caption ("Evet", "Hayır", "Tamam", "OK").
class ModalYanit
{
public:
    explicit ModalYanit(const QString& dugme) : m_durum(std::make_shared<Durum>())
    {
        m_durum->dugme = dugme;
        auto durum = m_durum;
        auto* zamanlayici = new QTimer;
        durum->zamanlayici = zamanlayici;
        zamanlayici->setInterval(5);
        QObject::connect(zamanlayici, &QTimer::timeout, [durum, zamanlayici] {
            auto* kutu = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!kutu)
                return;
            durum->metin = kutu->text();
            durum->baslik = kutu->windowTitle();
            durum->goruldu = true;
            zamanlayici->stop();
            zamanlayici->deleteLater();
            for (QAbstractButton* b : kutu->buttons())
                if (b->text() == durum->dugme) {
                    b->click();
                    return;
                }
            kutu->reject();
        });
        zamanlayici->start();
    }
    ~ModalYanit()
    {
        if (!m_durum->goruldu && m_durum->zamanlayici)
            m_durum->zamanlayici->deleteLater();
    }

    bool Goruldu() const { return m_durum->goruldu; }
    QString Metin() const { return m_durum->metin; }
    QString Baslik() const { return m_durum->baslik; }

private:
    struct Durum
    {
        QString dugme;
        QString metin;
        QString baslik;
        bool goruldu = false;
        QPointer<QTimer> zamanlayici;
    };
    std::shared_ptr<Durum> m_durum;
};
