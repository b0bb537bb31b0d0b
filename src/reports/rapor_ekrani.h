#pragma once

#include "kart_ekrani.h"
#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

#include <QDate>

#include <functional>
#include <utility>

class QComboBox;
class QFrame;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QTreeView;
class QVBoxLayout;
class RaporModeli;
class TarihSecici;

// What every report screen shares: the list lstRapor on the left with the
// finished rows of the report, the filter panel FR on the right, the walk
// that fills the list class by class, and the outputs of the list as it
// stands: paper (F3), PDF, CSV and XLSX. A report only computes its rows.
class RaporEkrani : public KartEkrani
{
    Q_OBJECT

public:
    // yaziBoyu is the default of YaziBoy, which differs from report to report.
    RaporEkrani(const CalismaBaglami& baglam, const QString& yaziBoyu, QWidget* parent = nullptr);
    ~RaporEkrani() override;

    // F3, Command12: the list as it stands on paper, through the screen's
    // output.
    void YaziciT();
    // FR narrow or wide.
    void Boyutlandir();
    const RaporTablosu& Tablo() const { return m_tablo; }

protected:
    // The report afresh from the panel: run by the dates' Enter and change.
    virtual void Toplu() = 0;
    // Fills a box's list when the user comes to it.
    virtual void ListeleriDoldur(QComboBox* kutu);
    // The paper of the report and the labels of its header block.
    virtual RaporKagidi Kagit() const = 0;
    virtual QStringList Etiketler() const { return {}; }
    // The header block from the constants: the statutory block with the
    // labels above, unless the form has one of its own.
    virtual QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const;
    // F5, Command3: the walk again from the class on screen.
    virtual void Command3Calistir() = 0;

    // The rows of one table in the list, or none.
    void Goster(const RaporTablosu& tablo);
    void ListeyiTemizle();

    // Runs the steps of a walk one after the other while each answers true.
    // The status line tells how far it is, and Esc stops the walk before the
    // next step. True when every step ran; false at once when a walk is
    // already running.
    bool Yuru(int adet, const std::function<bool(int)>& adim);
    bool Yuruyor() const { return m_yuruyor; }
    // A command whose error is shown; true when it ran to its end.
    bool Dene(const std::function<void()>& is);

    // A control of the screen on the panel, under the ones before and above
    // the paper's.
    void PaneleEkle(QWidget* w);
    // A titled frame on the panel, its controls one under the other.
    QGroupBox* Cerceve(const QString& baslik);
    // A box in the frame that the user types in or chooses from; its list is
    // filled when the user comes to it.
    QComboBox* SecimKutusu(QGroupBox* cerceve, const char* ad);
    // The title area above the list, as Baslik draws it: the report's title
    // and FCins2, the class or unit on screen, at 14 points in red.
    void BaslikKur();
    // The period, "Başlama Tarihi" and "Bitiş Tarihi", on the panel.
    void TarihleriKur();
    // The pickers set to the dates the screen opens with for Hangi.
    void AcilisTarihleri(const QString& hangi);
    // The panel's period: no upper bound when Tarih1 is blank.
    RaporSuzgeci Donem() const;
    // Toplu keeps the dates it ran with: leaving a date runs it again only
    // when the date was changed.
    void TarihleriAl();
    // Above the list, for the screen's title.
    void UsteEkle(QWidget* w);
    // A button of the screen in the row at the foot, after the ones before.
    QPushButton* Dugme(const char* ad, const QString& baslik);
    int Piksel(int twip) const;

    double YaziBoyu() const;
    int Yon() const;

    void closeEvent(QCloseEvent* olay) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

    // The message shown once the paper has gone out, where the form has one.
    QString GonderildiMesaji;

    QLabel* BaslikAlani = nullptr;
    QLabel* FCins2 = nullptr;
    TarihSecici* Tarih = nullptr;
    TarihSecici* Tarih1 = nullptr;
    QFrame* FR;
    QLabel* Boyut;
    QTreeView* lstRapor;
    QLineEdit* YaziBoy;
    QRadioButton* OpDik;
    QRadioButton* OpYat;
    QLineEdit* SayfaNo;
    QPushButton* Command3;
    QPushButton* Command12;
    QPushButton* CmdPdf;
    QPushButton* CmdCsv;
    QPushButton* CmdXlsx;
    QPushButton* Command13;

private:
    // The table with the header block of the institution's constants.
    RaporTablosu UstBilgili() const;
    void GenislikAyarla();
    // Asks the file name and writes the list to it.
    void DisaAktar(const QString& uzanti);

    RaporTablosu m_tablo;
    RaporModeli* m_model;
    QVBoxLayout* m_ana;
    QScrollArea* m_kaydirma;
    QWidget* m_panel;
    QVBoxLayout* m_panelYerlesimi;
    int m_panelYeri = 0;
    QHBoxLayout* m_dugmeler;
    int m_dugmeYeri = 1;
    std::pair<QDate, QDate> m_tarihler;
    bool m_genis = false;
    bool m_yuruyor = false;
    bool m_durdur = false;
};
