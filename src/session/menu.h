#pragma once

#include "calisma_baglami.h"

#include <QMainWindow>
#include <QMap>
#include <QVariantMap>

#include <functional>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QThread;
class Veri;

// Opens a screen with the working context the menu holds now and the mode
// values of the entry (control name of the target form → value).
using EkranAcici = std::function<void(const CalismaBaglami& baglam, const QVariantMap& kip)>;

// The main window: a panel of buttons and a menu bar that open the screens,
// the working year and month, and the institution's name. It lives for the
// whole run.
class Menu : public QMainWindow
{
    Q_OBJECT

public:
    // Reads the constants row at load; the data files stay open for the run.
    explicit Menu(Veri& veri, QWidget* ebeveyn = nullptr);
    ~Menu() override;

    // Makes the entries that open this form usable. Entries of forms without
    // an opener stand disabled.
    void EkranTanimla(const QString& form, EkranAcici acici);
    // The context a screen opened now receives.
    CalismaBaglami Baglam() const;
    // The new working year and month after the constants were saved.
    void CalismaAyarla(const QString& yil, const QString& ay);
    // Writes the monthly safety copy on a worker of its own, so that the menu
    // is usable at once; the status line says when it is done, a message
    // when it failed. Emits AylikKopyaBitti either way.
    void AylikKopyaYaz();

    QLineEdit* CalisYil;
    QLineEdit* CalisAy;
    QLabel* Baslik;
    QLabel* Picture2;  // the hint strip
    QPushButton* Cd8;

    QPushButton* Dugme(const QString& ad) const;
    QAction* Giris(const QString& ad) const;

signals:
    // Cd8 and Ck: the run ends.
    void Cikis();
    void AylikKopyaBitti();

protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;
    void changeEvent(QEvent* olay) override;

private:
    struct Hedef
    {
        QString form;
        QVariantMap kip;
    };
    void DugmeleriKur(QWidget* panel);
    void MenuCubugunuKur();
    void Ac(const Hedef& hedef);
    void OlmayanEkran();
    void Bagla(QPushButton* dugme, const Hedef& hedef, const QString& ipucu);
    void Bagla(QAction* giris, const Hedef& hedef);
    void Guncelle();

    Veri& m_veri;
    QThread* m_kopyaIsi = nullptr;
    QMap<QString, EkranAcici> m_acicilar;
    QMap<QString, QMenu*> m_altMenuler;
    // Every command with the form it opens; refreshed when an opener comes.
    QList<QPair<QPushButton*, Hedef>> m_dugmeler;
    QList<QPair<QAction*, Hedef>> m_girisler;
    QMap<QPushButton*, QString> m_ipuclari;
};
