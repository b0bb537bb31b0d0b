#include "fis_yaz.h"

#include "fis_sayfasi.h"
#include "hata.h"
#include "sabit_kayit.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

FisYaz::FisYaz(const CalismaBaglami& baglam, const FisYazimi& yazim, QWidget* ebeveyn)
    : SayfaEkrani(baglam, QStringLiteral("Fiş Yazdırma Önİzleme"), ebeveyn),
      KDVTut(Adli(new QLineEdit(yazim.KDVTOP, this), "KDVTut")),
      CmdKDV(Adli(new QPushButton(QStringLiteral("KDV ile Yazdır"), this), "CmdKDV")),
      m_yazim(yazim)
{
    auto* cerceve = new QGroupBox(QStringLiteral("KDV Tutarı"), this);
    auto* kutu = new QHBoxLayout(cerceve);
    kutu->addWidget(KDVTut);
    kutu->addWidget(Adli(new QLabel(QStringLiteral("KDV Tutarını Değiştirebilirsiniz"), cerceve), "Label2"));
    kutu->addWidget(CmdKDV);
    Arac()->insertWidget(2, cerceve);
    connect(CmdKDV, &QPushButton::clicked, this, &FisYaz::KdvYazdir);

    // Without the constants row the form is printed with its fields empty.
    SabitSatiri sabit;
    Komut([&] { sabit = SabitKayit::Getir(Genel()).value_or(SabitSatiri()); });
    SayfaGoster(FisSayfasi(m_yazim, sabit));
}

void FisYaz::KdvYazdir()
{
    try {
        FisKdvYaz(SayfaDegistir(), m_yazim, KDVTut->text());
    } catch (const Hata& h) {
        Bildir(h.Mesaj(), windowTitle(), QMessageBox::Critical);
        return;
    }
    SayfayiYenile();
    Yazdir();
}
