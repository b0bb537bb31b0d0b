#include "devir_teslim_ekrani.h"

#include "devir_teslim.h"
#include "devir_teslim_kagidi.h"
#include "rapor_listeleri.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

OzellikEkrani::OzellikEkrani(const CalismaBaglami& baglam, int ozellikHucresi, const QString& bosMesaj,
                             QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8.5"), parent), m_ozellikHucresi(ozellikHucresi), m_bosMesaj(bosMesaj)
{
    TarihleriKur();
    QGroupBox* aralik = Cerceve(QStringLiteral("Hesap Kod Aralığı"));
    HesapKod5 = SecimKutusu(aralik, "HesapKod5");
    HesapKod6 = SecimKutusu(aralik, "HesapKod6");
    Ozellik = SecimKutusu(Cerceve(QStringLiteral("Tek Malzeme Listeleme")), "Ozellik");
    QGroupBox* ambar = Cerceve(QStringLiteral("Ambar No"));
    AmbarNo = Adli(new QLineEdit(ambar), "AmbarNo");
    ambar->layout()->addWidget(AmbarNo);
    Check2 = Adli(new QCheckBox(QStringLiteral("Biteni Göster")), "Check2");
    PaneleEkle(Check2);

    Command3->setText(QStringLiteral("F5_ Listele"));
    Command16 = Dugme("Command16", QStringLiteral("Yeniden Liste"));

    for (QComboBox* k : {HesapKod6, Ozellik})
        connect(k, &QComboBox::activated, this, &OzellikEkrani::Toplu);
    connect(AmbarNo, &QLineEdit::returnPressed, this, &OzellikEkrani::Toplu);
    connect(Check2, &QCheckBox::toggled, this, &OzellikEkrani::Toplu);
    connect(Command16, &QPushButton::clicked, this, &OzellikEkrani::YenidenListe);
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { YaziciT(); });

    AcilisTarihleri(QString());
    resize(Piksel(15360), 720);
}

RaporSuzgeci OzellikEkrani::Suzgec() const
{
    RaporSuzgeci s = Donem();
    s.HesapKod5 = RaporListeleri::Kodu(HesapKod5->currentText());
    s.HesapKod6 = RaporListeleri::Kodu(HesapKod6->currentText());
    s.Ozellik = Ozellik->currentText();
    s.AmbarNo = AmbarNo->text();
    return s;
}

void OzellikEkrani::Toplu()
{
    // The stock is taken from the beginning of the records whatever the
    // picker showed.
    Tarih->GunYaz(DevirTeslimTutanagi::Suzgec({}).Tarih);
    TarihleriAl();
    RaporTablosu t;
    if (!Dene([&] { t = Hesapla(Suzgec(), Check2->isChecked()); }))
        return;
    if (t.satirlar.isEmpty()) {
        ListeyiTemizle();
        Bildir(m_bosMesaj);
        return;
    }
    Goster(t);
    // Every material listed can be chosen alone afterwards.
    for (const RaporSatiri& r : t.satirlar) {
        const QString ad = r.hucreler.value(m_ozellikHucresi);
        if (!m_adKumesi.contains(ad)) {
            m_adKumesi.insert(ad);
            m_adlar << ad;
        }
    }
    const QSignalBlocker sessiz(Ozellik);
    ListeDoldur(Ozellik, m_adlar);
}

void OzellikEkrani::Command3Calistir()
{
    Toplu();
}

void OzellikEkrani::YenidenListe()
{
    for (QComboBox* k : {HesapKod5, HesapKod6, Ozellik})
        k->setEditText(QString());
    AmbarNo->clear();
    Toplu();
}

QList<KagitSatiri> OzellikEkrani::UstBilgi(const SabitSatiri&, const RaporTablosu& tablo) const
{
    return tablo.ustBilgi;
}

void OzellikEkrani::ListeleriDoldur(QComboBox* kutu)
{
    if (kutu != HesapKod5 && kutu != HesapKod6)
        return;
    const QSignalBlocker sessiz(kutu);
    Dene([&] { ListeDoldur(kutu, RaporListeleri::KodluAdlar(RaporListeleri::TumHesapKodlari(Genel()))); });
}

DevirTeslim::DevirTeslim(const CalismaBaglami& baglam, QWidget* parent)
    : OzellikEkrani(baglam, DevirTeslimTutanagi::Ozellik, QStringLiteral("   Kayıt Bulunamadı ...  "), parent)
{
    setWindowTitle(QStringLiteral("Ambar Devir ve Teslim Tutanağı"));
}

RaporTablosu DevirTeslim::Hesapla(const RaporSuzgeci& s, bool biteniGoster)
{
    return DevirTeslimTutanagi::Tablo(Ayniyat(), s, biteniGoster);
}

RaporKagidi DevirTeslim::Kagit() const
{
    return DevirTeslimTutanagi::Kagit(Yon());
}
