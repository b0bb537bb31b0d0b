#include "sayim_cetveli_ekrani.h"

#include "sayim_cetveli.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>

SayimCetveli::SayimCetveli(const CalismaBaglami& baglam, QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8.5"), parent)
{
    const auto cerceve = [this](const QString& ad) {
        auto* g = new QGroupBox(ad, this);
        new QVBoxLayout(g);
        PaneleEkle(g);
        return g;
    };
    const auto tarih = [&](TarihSecici*& kutu, const char* ad, const QString& baslik) {
        QGroupBox* g = cerceve(baslik);
        kutu = Adli(new TarihSecici(g), ad);
        kutu->installEventFilter(this);
        g->layout()->addWidget(kutu);
        connect(kutu, &TarihSecici::editingFinished, this, [this] {
            if (std::pair(Tarih->date(), Tarih1->date()) != m_tarihler)
                Toplu();
        });
    };
    tarih(Tarih, "Tarih", QStringLiteral("Başlama Tarihi"));
    tarih(Tarih1, "Tarih1", QStringLiteral("Bitiş Tarihi"));

    // The main accounts, code above name; a click lists that account alone.
    const QList<std::pair<QString, QString>>& hesaplar = SayimDokum::AnaHesaplar();
    T2 = Adli(new QTableWidget(2, int(hesaplar.size()), this), "T2");
    T2->horizontalHeader()->hide();
    T2->verticalHeader()->hide();
    T2->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (int i = 0; i < hesaplar.size(); ++i) {
        T2->setItem(0, i, new QTableWidgetItem(hesaplar[i].first));
        T2->setItem(1, i, new QTableWidgetItem(hesaplar[i].second));
    }
    T2->resizeColumnsToContents();
    T2->setFixedHeight(T2->rowHeight(0) * 2 + 2 * T2->frameWidth());
    PaneleEkle(T2);
    connect(T2, &QTableWidget::cellClicked, this, [this](int, int sutun) {
        m_anaHesap = T2->item(0, sutun)->text();
        Toplu();
    });

    QGroupBox* tek = cerceve(QStringLiteral("Tek Malzeme Listeleme"));
    HesapNo4 = YazilirKutu(tek, QStringLiteral("HesapNo4"));
    HesapNo4->installEventFilter(this);
    tek->layout()->addWidget(HesapNo4);
    connect(HesapNo4, &QComboBox::activated, this, &SayimCetveli::Toplu);

    Command3->setText(QStringLiteral("F5_ Yeniden Hesapla"));
    Command16 = Dugme("Command16", QStringLiteral("Yeniden Liste"));
    connect(Command16, &QPushButton::clicked, this, &SayimCetveli::YenidenListe);

    const RaporSuzgeci acilis = RaporSuzgecleri::Acilis(Baglam().CalisYil, QStringLiteral("T"));
    Tarih->GunYaz(acilis.Tarih);
    Tarih1->GunYaz(acilis.Tarih1);
    setWindowTitle(QStringLiteral("Taşınır Sayım ve Döküm Cetveli"));
    resize(Piksel(15360), 720);
}

void SayimCetveli::HangiYaz(const QString& hangi)
{
    // The durable goods from the beginning of the records.
    if (hangi == u"D")
        Tarih->GunYaz(QDate(1900, 1, 1));
    Toplu();
}

RaporSuzgeci SayimCetveli::Suzgec() const
{
    RaporSuzgeci s;
    s.Tarih = Tarih->date();
    if (!Tarih1->Bos())
        s.Tarih1 = Tarih1->date();
    return s;
}

void SayimCetveli::Toplu()
{
    m_tarihler = {Tarih->date(), Tarih1->date()};
    QString altHesap;
    for (const RaporListeleri::KodAd& k : m_altHesaplar)
        if (k.kod + QStringLiteral("  ") + k.ad == HesapNo4->currentText())
            altHesap = k.kod;
    ListeyiTemizle();
    Durum(QStringLiteral(" Lütfen Bekleyiniz  ...  "));
    SayimDokum::Sonuc sonuc;
    const bool oldu =
        Dene([&] { sonuc = SayimDokum::Hesapla(Ayniyat(), Genel(), Suzgec(), m_anaHesap, altHesap); });
    Durum(QString());
    if (!oldu)
        return;
    if (!sonuc.sinifVar)
        Bildir(QStringLiteral("  Malzeme Kaydı Bulunamadı .. "));
    else if (sonuc.tablo.satirlar.isEmpty())
        Bildir(QStringLiteral(" Kayıt Bulunamadı .. "));
    else
        Goster(sonuc.tablo);
}

void SayimCetveli::Command3Calistir()
{
    Toplu();
}

void SayimCetveli::YenidenListe()
{
    m_anaHesap.clear();
    T2->clearSelection();
    HesapNo4->setEditText(QString());
    Toplu();
}

RaporKagidi SayimCetveli::Kagit() const
{
    return SayimDokum::Kagit(SabitKayit::Getir(Genel()).value_or(SabitSatiri()));
}

QStringList SayimCetveli::Etiketler() const
{
    return SayimDokum::Etiketler();
}

bool SayimCetveli::eventFilter(QObject* nesne, QEvent* olay)
{
    if ((nesne == Tarih || nesne == Tarih1) && olay->type() == QEvent::KeyPress) {
        const int tus = static_cast<QKeyEvent*>(olay)->key();
        if (tus == Qt::Key_Return || tus == Qt::Key_Enter) {
            Toplu();
            return true;
        }
    }
    // The first-level codes are read when the user comes to the box.
    if (nesne == HesapNo4 && olay->type() == QEvent::FocusIn) {
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (neden != Qt::ActiveWindowFocusReason && neden != Qt::PopupFocusReason) {
            const QSignalBlocker sessiz(HesapNo4);
            Dene([&] {
                m_altHesaplar = SayimDokum::AltHesaplar(Genel());
                QStringList kodlar;
                for (const RaporListeleri::KodAd& k : m_altHesaplar)
                    kodlar << k.kod + QStringLiteral("  ") + k.ad;
                ListeDoldur(HesapNo4, kodlar);
            });
        }
    }
    return RaporEkrani::eventFilter(nesne, olay);
}
