#include "sabit.h"

#include "kayit.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

Sabit::Sabit(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Sabit Bilgiler"));
    auto* ana = new QVBoxLayout(this);

    auto* ust = new QHBoxLayout;
    Anahtar = new QLineEdit(QStringLiteral("1"), this);
    Anahtar->setObjectName(QStringLiteral("Anahtar"));
    Anahtar->setMaximumWidth(60);
    auto* anahtarEtiketi = new QLabel(QStringLiteral("Anahtar"), this);
    anahtarEtiketi->setBuddy(Anahtar);
    ust->addWidget(anahtarEtiketi);
    ust->addWidget(Anahtar);
    ust->addStretch();
    ana->addLayout(ust);

    // Signatory frames hold an unlabelled pair and fill the left column; the
    // labelled frames go right, two label and box pairs a row, their label
    // columns of one width so that the boxes line up from frame to frame.
    auto* sutunlar = new QHBoxLayout;
    auto* imzalar = new QVBoxLayout;
    auto* digerleri = new QVBoxLayout;
    sutunlar->addLayout(imzalar, 1);
    sutunlar->addLayout(digerleri, 1);
    ana->addLayout(sutunlar);

    const QList<SabitAlan>& alanlar = SabitAlanlari();
    int etiketGenisligi[2] = {0, 0};
    QList<QGridLayout*> etiketliIzgaralar;
    QList<QWidget*> sekmeSirasi{Anahtar};
    for (qsizetype bas = 0; bas < alanlar.size();) {
        auto* cerceve = new QGroupBox(alanlar[bas].cerceve, this);
        auto* izgara = new QGridLayout(cerceve);
        const bool etiketli = !alanlar[bas].etiket.isEmpty();
        qsizetype i = bas;
        for (; i < alanlar.size() && alanlar[i].cerceve == alanlar[bas].cerceve; ++i) {
            const SabitAlan& a = alanlar[i];
            auto* k = new QLineEdit(cerceve);
            k->setObjectName(a.kontrol);
            m_kutular.insert(a.kontrol, k);
            sekmeSirasi << k;
            const int yer = int(i - bas);
            // Names on the left of a labelled frame, codes and titles on its right.
            k->setMinimumWidth(fontMetrics().averageCharWidth() * (!etiketli ? 24 : yer % 2 ? 19 : 32));
            if (etiketli) {
                auto* etiket = new QLabel(a.etiket, cerceve);
                etiket->setBuddy(k);
                etiketGenisligi[yer % 2] = qMax(etiketGenisligi[yer % 2], etiket->sizeHint().width());
                izgara->addWidget(etiket, yer / 2, (yer % 2) * 2);
                izgara->addWidget(k, yer / 2, (yer % 2) * 2 + 1);
            } else {
                izgara->addWidget(k, 0, yer);
            }
        }
        if (etiketli) {
            izgara->setColumnStretch(1, 1);
            izgara->setColumnStretch(3, 1);
            etiketliIzgaralar << izgara;
        }
        (etiketli ? digerleri : imzalar)->addWidget(cerceve);
        bas = i;
    }
    for (QGridLayout* izgara : etiketliIzgaralar) {
        izgara->setColumnMinimumWidth(0, etiketGenisligi[0]);
        izgara->setColumnMinimumWidth(2, etiketGenisligi[1]);
    }
    imzalar->addStretch();
    digerleri->addStretch();

    auto* dugmeler = new QHBoxLayout;
    c2 = new QPushButton(QStringLiteral("F1 Kayıt"), this);
    c2->setObjectName(QStringLiteral("c2"));
    c2->setToolTip(QStringLiteral("Ekrandakileri Kaydeder"));
    Command13 = new QPushButton(QStringLiteral("Çıkış"), this);
    Command13->setObjectName(QStringLiteral("Command13"));
    dugmeler->addStretch();
    dugmeler->addWidget(c2);
    dugmeler->addWidget(Command13);
    ana->addLayout(dugmeler);
    DurumSatiriEkle(ana);

    sekmeSirasi << c2 << Command13;
    for (qsizetype i = 1; i < sekmeSirasi.size(); ++i)
        setTabOrder(sekmeSirasi[i - 1], sekmeSirasi[i]);

    Muhasebeci1 = kutu(QStringLiteral("Muhasebeci1"));
    Muhasebeci2 = kutu(QStringLiteral("Muhasebeci2"));
    AyniyatMemuru1 = kutu(QStringLiteral("AyniyatMemuru1"));
    AyniyatMemuru2 = kutu(QStringLiteral("AyniyatMemuru2"));
    SubeMudur1 = kutu(QStringLiteral("SubeMudur1"));
    SubeMudur2 = kutu(QStringLiteral("SubeMudur2"));
    KurumAdi = kutu(QStringLiteral("KurumAdi"));
    CalisYil = kutu(QStringLiteral("CalisYil"));
    CalisAy = kutu(QStringLiteral("CalisAy"));

    connect(c2, &QPushButton::clicked, this, &Sabit::Kaydet);
    connect(Command13, &QPushButton::clicked, this, &QWidget::close);
    TusTanimla(QKeySequence(Qt::Key_F1), [this] { Kaydet(); });
    TusTanimla(QKeySequence(Qt::Key_F2), [this] {
        Temizle();
        SubeMudur1->setFocus();
    });
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Sil(); });
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F9), Muhasebeci1, [this] { KurumAdi->setFocus(); },
                  Qt::WidgetShortcut);

    // The Enter path of the signatories; it ends in SubeMudur2, where Enter
    // leaves the focus.
    connect(Anahtar, &QLineEdit::returnPressed, this, [this] {
        Getir();
        Muhasebeci1->setFocus();
    });
    const QList<QLineEdit*> yol{Muhasebeci1, Muhasebeci2, AyniyatMemuru1, AyniyatMemuru2, SubeMudur1, SubeMudur2};
    for (qsizetype i = 1; i < yol.size(); ++i) {
        QLineEdit* sonraki = yol[i];
        connect(yol[i - 1], &QLineEdit::returnPressed, sonraki, [sonraki] { sonraki->setFocus(); });
    }

    Getir();
}

SabitSatiri Sabit::Degerler() const
{
    SabitSatiri satir;
    for (const SabitAlan& a : SabitAlanlari())
        satir.insert(a.alan, kutu(a.kontrol)->text());
    return satir;
}

void Sabit::Getir()
{
    std::optional<SabitSatiri> satir;
    try {
        MesgulImlec imlec;
        satir = SabitKayit::Getir(Genel());
    } catch (const Hata& h) {
        Durum(QStringLiteral(" Kayıt getirilemiyor."));
        Bildir(h.Mesaj(), QString(), QMessageBox::Critical);
        return;
    }
    if (satir) {
        for (const SabitAlan& a : SabitAlanlari()) {
            QLineEdit* k = kutu(a.kontrol);
            k->setText(satir->value(a.alan));
            k->setCursorPosition(0);  // a long name shows its beginning
        }
        return;
    }
    const bool ac = Sor(QStringLiteral("Böyle bir kayıt bulunamadı, Şimdi açmak ister misiniz ?"), windowTitle());
    Temizle();
    if (ac)
        Muhasebeci1->setFocus();
}

void Sabit::Kaydet()
{
    Komut([this] {
        Durum(QStringLiteral("    Lütfen Bekleyiniz  .."));
        try {
            SabitKayit::Kaydet(Genel(), Degerler());
        } catch (const Hata&) {
            Durum(QStringLiteral(" Kayıt yapılamadı."));
            throw;
        }
        // The success text stays: cleared at once, it would never be seen.
        Durum(QStringLiteral("    Kayıt Başarılı  .. "));
        emit CalismaDegisti(CalisYil->text(), CalisAy->text());
    });
}

void Sabit::Sil()
{
    if (Val(Anahtar->text()) < 1)
        return;
    bool var = false;
    Komut([&] { var = SabitKayit::Var(Genel()); });
    if (!var || !Sor(QStringLiteral("Bu bilgileri silmek istiyormusunuz ?"), QStringLiteral("Siliniyor")))
        return;
    Komut([this] {
        SabitKayit::Sil(Genel());
        Temizle();
        Muhasebeci1->setFocus();
    });
}

void Sabit::Temizle()
{
    // The routine also names KurumAdi2, a box this screen does not have.
    for (QLineEdit* k : {Muhasebeci1, Muhasebeci2, AyniyatMemuru1, AyniyatMemuru2, SubeMudur1, SubeMudur2, KurumAdi,
                         CalisAy, CalisYil})
        k->clear();
}
