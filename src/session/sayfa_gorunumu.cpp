#include "sayfa_gorunumu.h"

#include <QPainter>

class SayfaGorunumu::Kagit : public QWidget
{
public:
    Sayfa sayfa;
    double yakinlik = 1;

    // Screen pixels per twip.
    QPointF Olcek() const
    {
        return QPointF(logicalDpiX(), logicalDpiY()) * yakinlik / TwipInc;
    }

    void Yenile()
    {
        const QSizeF kagit = sayfa.KagitBoyu();
        const QPointF olcek = Olcek();
        setFixedSize(qRound(kagit.width() * olcek.x()), qRound(kagit.height() * olcek.y()));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter ressam(this);
        ressam.setRenderHint(QPainter::Antialiasing);
        ressam.fillRect(rect(), Qt::white);
        const QPointF olcek = Olcek();
        ressam.scale(olcek.x(), olcek.y());
        ressam.translate(KenarTwip, KenarTwip);
        SayfaCiz(ressam, sayfa);
    }
};

SayfaGorunumu::SayfaGorunumu(QWidget* ebeveyn)
    : QScrollArea(ebeveyn)
    , m_kagit(new Kagit)
{
    setBackgroundRole(QPalette::Dark);
    setAlignment(Qt::AlignCenter);
    setWidget(m_kagit);
    m_kagit->Yenile();
}

void SayfaGorunumu::SayfaGoster(const Sayfa& sayfa)
{
    m_kagit->sayfa = sayfa;
    m_kagit->Yenile();
}

void SayfaGorunumu::YakinlikAyarla(double oran)
{
    m_kagit->yakinlik = qBound(0.1, oran, 10.0);
    m_kagit->Yenile();
}

double SayfaGorunumu::Yakinlik() const
{
    return m_kagit->yakinlik;
}
