#include "dusum_yaz.h"

#include "dusum_sayfasi.h"
#include "sabit_kayit.h"

#include <QBoxLayout>
#include <QPushButton>

DusumYaz::DusumYaz(const CalismaBaglami& baglam, const DusumYazimi& yazim, QWidget* ebeveyn)
    : SayfaEkrani(baglam, QStringLiteral("Hasarlı Dusum Yaz"), ebeveyn, FormResmi::Yok),
      CmdKDV(Adli(new QPushButton(QStringLiteral("F3 KDV Yaz"), this), "CmdKDV")),
      m_yazim(yazim)
{
    CmdYaz->setText(QStringLiteral("F2  Yaz"));
    c8->setText(QStringLiteral("Esc_Çıkış"));
    Arac()->insertWidget(1, CmdKDV);
    connect(CmdKDV, &QPushButton::clicked, this, &DusumYaz::KdvYaz);
    TusTanimla(QKeySequence(Qt::Key_F3), [this] { KdvYaz(); });

    // Without the constants row the minutes are printed with their fields empty.
    SabitSatiri sabit;
    Komut([&] { sabit = SabitKayit::Getir(Genel()).value_or(SabitSatiri()); });
    SayfaGoster(DusumSayfasi(m_yazim, sabit));
}

void DusumYaz::KdvYaz()
{
    DusumKdvYaz(SayfaDegistir(), m_yazim);
    SayfayiYenile();
}
