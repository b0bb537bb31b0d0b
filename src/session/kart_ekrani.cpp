#include "kart_ekrani.h"

#include "cikti_ekran.h"
#include "hata.h"
#include "veri.h"
#include "yazici.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

KartEkrani::KartEkrani(const CalismaBaglami& baglam, QWidget* ebeveyn)
    : QWidget(ebeveyn, Qt::Window), m_baglam(baglam), m_durum(new QLabel(this))
{
    m_durum->setObjectName(QStringLiteral("Picture2"));
    m_durum->setFrameShape(QFrame::StyledPanel);
    m_durum->setMinimumHeight(22);
    setAttribute(Qt::WA_DeleteOnClose);
    TusTanimla(QKeySequence(Qt::Key_Escape), [this] { close(); });
}

QLabel* KartEkrani::BaslikEtiketi(const QString& ad, const QString& metin)
{
    auto* etiket = new QLabel(metin, this);
    etiket->setObjectName(ad);
    QFont yazi = etiket->font();
    yazi.setBold(true);
    yazi.setPointSizeF(yazi.pointSizeF() * 1.3);
    etiket->setFont(yazi);
    return etiket;
}

void KartEkrani::DurumSatiriEkle(QBoxLayout* yerlesim)
{
    yerlesim->addWidget(m_durum);
}

void KartEkrani::DurumSatiriniGizle()
{
    QSizePolicy boyut = m_durum->sizePolicy();
    boyut.setRetainSizeWhenHidden(true);
    m_durum->setSizePolicy(boyut);
    m_durum->hide();
}

void KartEkrani::Durum(const QString& metin)
{
    m_durum->setText(metin);
    m_durum->repaint();
}

void KartEkrani::TusTanimla(QKeySequence tus, std::function<void()> is)
{
    auto* kisayol = new QShortcut(tus, this);
    kisayol->setContext(Qt::WidgetWithChildrenShortcut);
    connect(kisayol, &QShortcut::activated, this, [is = std::move(is)] { is(); });
}

bool KartEkrani::Sor(const QString& soru, const QString& baslik, QMessageBox::Icon ikon)
{
    return EvetHayir(this, soru, baslik, ikon);
}

void KartEkrani::Bildir(const QString& mesaj, const QString& baslik, QMessageBox::Icon ikon)
{
    QMessageBox kutu(ikon, baslik.isEmpty() ? windowTitle() : baslik, mesaj, QMessageBox::NoButton, this);
    kutu.addButton(QStringLiteral("Tamam"), QMessageBox::AcceptRole);
    kutu.exec();
}

void KartEkrani::Komut(const std::function<void()>& is)
{
    try {
        MesgulImlec imlec;
        is();
    } catch (const Hata& h) {
        Bildir(h.Mesaj(), windowTitle(), QMessageBox::Critical);
    }
}

void KartEkrani::CiktiyaYaz(const std::function<void(Cikti&)>& is)
{
    OnizlemeCikti onizleme(this);
    try {
        is(m_cikti ? *m_cikti : onizleme);
    } catch (const YaziciHatasi& h) {
        Bildir(h.Mesaj(), windowTitle(), QMessageBox::Critical);
    }
}

void KartEkrani::Yazdir(const std::function<void(Yazici&)>& is)
{
    // A document cut short by a failure goes with its printer.
    CiktiyaYaz([&](Cikti& cikti) {
        Yazici p(&cikti);
        is(p);
    });
}

MesgulImlec::MesgulImlec()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

MesgulImlec::~MesgulImlec()
{
    QApplication::restoreOverrideCursor();
}

bool EvetHayir(QWidget* ebeveyn, const QString& soru, const QString& baslik, QMessageBox::Icon ikon)
{
    QMessageBox kutu(ikon, baslik, soru, QMessageBox::NoButton, ebeveyn);
    QPushButton* evet = kutu.addButton(QStringLiteral("Evet"), QMessageBox::YesRole);
    kutu.addButton(QStringLiteral("Hayır"), QMessageBox::NoRole);
    kutu.setDefaultButton(evet);
    kutu.exec();
    return kutu.clickedButton() == evet;
}

Veritabani& KartEkrani::Genel() const
{
    return m_baglam.Veriler->Genel();
}

Veritabani& KartEkrani::Ayniyat() const
{
    return m_baglam.Veriler->Ayniyat();
}
