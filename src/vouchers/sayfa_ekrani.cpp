#include "sayfa_ekrani.h"

#include "sayfa_gorunumu.h"
#include "veri.h"
#include "veri_klasoru.h"
#include "yazici.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QImage>
#include <QPushButton>

SayfaEkrani::SayfaEkrani(const CalismaBaglami& baglam, const QString& baslik, QWidget* ebeveyn, FormResmi resim)
    : KartEkrani(baglam, ebeveyn), P(Adli(new SayfaGorunumu(this), "P")),
      CmdYaz(Adli(new QPushButton(QStringLiteral("F2  Yazdır"), this), "CmdYaz")),
      c8(Adli(new QPushButton(QStringLiteral("Esc  Çıkış"), this), "c8")),
      Command2(resim == FormResmi::Var ? Adli(new QPushButton(QStringLiteral("Form Resmi"), this), "Command2")
                                       : nullptr),
      m_arac(new QHBoxLayout)
{
    setWindowTitle(baslik);
    auto* ana = new QVBoxLayout(this);
    ana->addLayout(m_arac);
    m_arac->addWidget(CmdYaz);
    if (Command2) {
        m_arac->addWidget(Command2);
        connect(Command2, &QPushButton::clicked, this, &SayfaEkrani::ResimYukle);
    }
    m_arac->addStretch();
    m_arac->addWidget(c8);
    ana->addWidget(P, 1);
    DurumSatiriEkle(ana);
    resize(900, 760);

    connect(CmdYaz, &QPushButton::clicked, this, &SayfaEkrani::Yazdir);
    connect(c8, &QPushButton::clicked, this, &QWidget::close);
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { Yazdir(); });
}

void SayfaEkrani::SayfaGoster(const Sayfa& sayfa)
{
    m_sayfa = sayfa;
    SayfayiYenile();
}

void SayfaEkrani::SayfayiYenile()
{
    P->SayfaGoster(m_sayfa);
}

void SayfaEkrani::Yazdir()
{
    KartEkrani::Yazdir([this](Yazici& p) {
        p.PaintPicture(m_sayfa);
        p.EndDoc();
    });
}

void SayfaEkrani::ResimYukle()
{
    const QString yol = VeriKlasoru::DosyaYolu(Baglam().Veriler->Klasor(), QStringLiteral("FisY1.BMP"));
    QImage resim(yol);
    if (resim.isNull()) {
        Bildir(QStringLiteral("Form resmi okunamadı: %1").arg(yol), windowTitle(), QMessageBox::Critical);
        return;
    }
    // The scanned form takes the place of the drawn one.
    m_sayfa.zemin = Zemin{};
    m_sayfa.zemin.resim = resim;
    SayfayiYenile();
}
