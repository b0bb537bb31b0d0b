#include "dusum.h"

#include "bicim.h"
#include "dusulen_l.h"
#include "dusum_l1.h"
#include "dusum_yaz.h"
#include "fis_satir.h"
#include "kayit.h"
#include "liste_izgarasi.h"
#include "metin_sec.h"
#include "saat.h"
#include "satir_girisi.h"
#include "satir_izgarasi.h"
#include "tarih_secici.h"
#include "veritabani.h"
#include "yazilir_kutu.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>

Dusum::Dusum(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Kayıttan Düşme"));
    auto* ana = new QVBoxLayout(this);
    Label2 = BaslikEtiketi(QStringLiteral("Label2"), QStringLiteral("Hasarlı-Kullanım Dışı Malzeme Çıkışı"));
    ana->addWidget(Label2);

    auto* bas = new QGridLayout;
    ana->addLayout(bas);
    const auto etiketli = [&](const QString& etiket, QWidget* kutu, int satir, int sutun) {
        auto* e = new QLabel(etiket, this);
        e->setBuddy(kutu);
        bas->addWidget(e, satir, sutun);
        bas->addWidget(kutu, satir, sutun + 1);
    };
    FisNo = new QLineEdit(this);
    FisNo->setObjectName(QStringLiteral("FisNo"));
    FisNo->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    Tarih = new TarihSecici(this);
    Tarih->setObjectName(QStringLiteral("Tarih"));
    Command7 = new QPushButton(QStringLiteral("Getir"), this);
    Command7->setObjectName(QStringLiteral("Command7"));
    etiketli(QStringLiteral("Tutanak No"), FisNo, 0, 0);
    etiketli(QStringLiteral("Tarih"), Tarih, 0, 2);
    bas->addWidget(Command7, 0, 4, Qt::AlignLeft);
    QComboBox** kutular[] = {&KomisyonBaskaniAdi, &KomisyonBaskaniUnvani, &UyeAdi, &UyeUnvani,
                             &HarcamaYetkilisiAdi, &HarcamaYetkilisiUnvani};
    const char* adlar[] = {"KomisyonBaskaniAdi", "KomisyonBaskaniUnvani", "UyeAdi", "UyeUnvani",
                           "HarcamaYetkilisiAdi", "HarcamaYetkilisiUnvani"};
    const QString etiketler[] = {QStringLiteral("Komisyon Başkanı"), QStringLiteral("Unvanı"),
                                 QStringLiteral("Üye"), QStringLiteral("Unvanı"),
                                 QStringLiteral("Harcama Yetkilisi"), QStringLiteral("Unvanı")};
    for (int i = 0; i < 6; ++i) {
        *kutular[i] = YazilirKutu(this, QString::fromLatin1(adlar[i]));
        (*kutular[i])->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
        etiketli(etiketler[i], *kutular[i], 1 + i / 2, (i % 2) * 2);
    }
    bas->setColumnStretch(5, 1);

    Label15 = new QLabel(this);
    Label15->setObjectName(QStringLiteral("Label15"));
    Label15->setFrameShape(QFrame::StyledPanel);
    ana->addWidget(Label15);

    m_hesKodlari = new QStringListModel(this);
    m_sinifListesi = new QStringListModel(this);
    m_uniteListesi = new QStringListModel(this);
    T = new SatirIzgarasi(new IzgaraModeli(FisSatir::SatirSayisi, DusumKayit::Sutunlar()), this);
    T->setObjectName(QStringLiteral("T"));
    T->Delege()->ListeVer(DusumSutun::Unite, m_uniteListesi);
    T->Delege()->ListeVer(DusumSutun::HesapKod, m_hesKodlari);
    T->Delege()->ListeVer(DusumSutun::MalzAdi, m_sinifListesi);
    m_giris = new SatirGirisi(T, {[this] { HesapAdGetir(); }, [this](const QString& m) { Bildir(m); }}, this);
    ana->addWidget(T, 1);

    auto* alt = new QHBoxLayout;
    ana->addLayout(alt);
    const auto kutu = [&](QLineEdit*& k, const QString& ad) {
        k = new QLineEdit(this);
        k->setObjectName(ad);
        k->setReadOnly(true);
        k->setMaximumWidth(fontMetrics().averageCharWidth() * 16);
        alt->addWidget(k);
    };
    kutu(TxtKisi, QStringLiteral("TxtKisi"));
    TxtKisi->hide();
    alt->addStretch();
    kutu(Text2, QStringLiteral("Text2"));
    kutu(Text3, QStringLiteral("Text3"));
    for (QLineEdit* k : {Text2, Text3})
        k->setAlignment(Qt::AlignRight);

    auto* dugmeler1 = new QHBoxLayout;
    auto* dugmeler2 = new QHBoxLayout;
    ana->addLayout(dugmeler1);
    ana->addLayout(dugmeler2);
    const auto dugme = [this](QHBoxLayout* sira, QPushButton*& d, const char* ad, const QString& baslik) {
        d = Adli(new QPushButton(baslik, this), ad);
        sira->addWidget(d);
    };
    dugme(dugmeler1, cd2, "cd2", QStringLiteral("F1 Kaydet"));
    dugme(dugmeler1, Cd4, "Cd4", QStringLiteral("F2  Yaz"));
    dugme(dugmeler1, cd1, "cd1", QStringLiteral("F3 Yeni"));
    dugme(dugmeler1, cd5, "cd5", QStringLiteral("F6_ Sil"));
    dugme(dugmeler1, Command2, "Command2", QStringLiteral("F8.Satırı Sil"));
    Command2->setToolTip(QStringLiteral("İmlecin olduğu satırı siler. Daha sonra F1 ile Kayıt yapılmalı."));
    dugmeler1->addStretch();
    dugme(dugmeler2, Cmd9, "Cmd9", QStringLiteral("Ctrl F9 HesapYaz"));
    dugme(dugmeler2, Command8, "Command8", QStringLiteral("F10 Malzeme Liste"));
    dugme(dugmeler2, Cc3, "Cc3", QStringLiteral("Malzeme Ara"));
    dugme(dugmeler2, Command3, "Command3", QStringLiteral("Liste"));
    dugme(dugmeler2, Command6, "Command6", QStringLiteral("Ctrl F10 Hesap Rapor"));
    dugmeler2->addStretch();
    dugme(dugmeler2, cd8, "cd8", QStringLiteral("Esc_Çıkış"));
    DurumSatiriEkle(ana);

    // The movement list stands over the whole grid.
    L3 = new ListeIzgarasi(this);
    L3->setObjectName(QStringLiteral("L3"));
    L3->Genislikler(DusumKayit::HareketGenislikleri());
    L3->Basliklar(DusumKayit::HareketBasliklari());
    L3->hide();
    T->Ortu(L3);

    for (QWidget* w : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (w->focusPolicy() != Qt::NoFocus)
            w->installEventFilter(this);
    connect(T, &SatirIzgarasi::EditorAcildi, this, [this](QWidget* editor) { editor->installEventFilter(this); });
    connect(T, &SatirIzgarasi::HucreDegisti, this, &Dusum::HucreDegisti);
    connect(T->Delege(), &IzgaraDelegesi::Secildi, this,
            [this](int sutun, int, const QString& oge) { ListedenSecildi(sutun, oge); });

    connect(Command7, &QPushButton::clicked, this, [this] {
        if (FisNo->text().trimmed().isEmpty())
            Bildir(QStringLiteral("Bir Fiş No girmek zorundasınız.."), QString(), QMessageBox::Critical);
        else
            Getir();
    });
    connect(cd2, &QPushButton::clicked, this, &Dusum::Kaydet);
    connect(Cd4, &QPushButton::clicked, this, &Dusum::TutanakYazdir);
    connect(cd1, &QPushButton::clicked, this, [this] {
        Temizle();
        Sonk();
    });
    connect(cd5, &QPushButton::clicked, this, &Dusum::Sil);
    connect(Command2, &QPushButton::clicked, m_giris, &SatirGirisi::SatirSil);
    connect(Cmd9, &QPushButton::clicked, this, &Dusum::HareketYazdir);
    connect(Command8, &QPushButton::clicked, this, &Dusum::MalzemeListesiAc);
    connect(Cc3, &QPushButton::clicked, this, &Dusum::MalzemeListesiAc);
    connect(Command3, &QPushButton::clicked, this, &Dusum::ListeAc);
    connect(Command6, &QPushButton::clicked, this,
            [this] { HareketListesi(QStringLiteral("Seçili Hesap Kod Yok. 2. Sütuna 3.Detay Hesap Kod belirtiniz. ")); });
    connect(cd8, &QPushButton::clicked, this, &QWidget::close);

    TusTanimla(QKeySequence(Qt::Key_F1), [this] {
        if (!FisNo->text().trimmed().isEmpty())
            Kaydet();
    });
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { TutanakYazdir(); });
    TusTanimla(QKeySequence(Qt::Key_F3), [this] {
        FisNo->clear();
        Temizle();
        Sonk();
        FisNo->setFocus();
    });
    TusTanimla(QKeySequence(Qt::Key_F6), [this] { Sil(); });
    TusTanimla(QKeySequence(Qt::Key_F8), [this] { m_giris->SatirSil(); });
    TusTanimla(QKeySequence(Qt::Key_F9),
               [this] { HareketListesi(QStringLiteral(" Seçili Hesap Yok. 2. Sütunda Hesap No belirtiniz. ")); });
    TusTanimla(QKeySequence(Qt::CTRL | Qt::Key_F9), [this] { HareketYazdir(); });
    TusTanimla(QKeySequence(Qt::Key_F10), [this] { MalzemeListesiAc(); });
    TusTanimla(QKeySequence(Qt::Key_Insert), [this] {
        m_giris->AsagiKopyala([](QList<QStringList>& satirlar, FisSatir::Hucre hucre) {
            return FisSatir::SatirKopyala(satirlar, hucre, DusumSutun::KDV);
        });
    });

    Temizle();
    Urunler();
    Sonk();
    resize(1240, 760);
    FisNo->setFocus();
}

DusumEkrani Dusum::Ekran() const
{
    DusumEkrani d;
    d.FisNo = FisNo->text();
    d.Tarih = Tarih->Metin();
    d.CalisYil = Baglam().CalisYil;
    d.CalisAy = Baglam().CalisAy;
    d.KomisyonBaskaniAdi = KomisyonBaskaniAdi->currentText();
    d.KomisyonBaskaniUnvani = KomisyonBaskaniUnvani->currentText();
    d.UyeAdi = UyeAdi->currentText();
    d.UyeUnvani = UyeUnvani->currentText();
    d.Satirlar = T->Hucreler();
    return d;
}

bool Dusum::Dene(const std::function<void()>& is)
{
    bool oldu = false;
    Komut([&] {
        is();
        oldu = true;
    });
    return oldu;
}

QString Dusum::Hucre(int sutun) const
{
    return T->TextMatrix(T->Row(), sutun);
}

void Dusum::HucreYaz(int sutun, const QString& metin)
{
    T->HucreYaz(T->Row(), sutun, metin);
}

void Dusum::Kaydet()
{
    Durum(QStringLiteral("      Lütfen Bekleyiniz  ...  "));
    const auto aySorusu = [this] {
        QApplication::restoreOverrideCursor();
        const bool devam =
            Sor(QStringLiteral("\n Bilgisayar Tarihi, Çalışılan Aydan Farklı. Kayda Devam edilecek mi ?. \n"
                               " (Çalışma Ay 'ını Sabit Bilgiler 'den Değiştiriniz.)"));
        QApplication::setOverrideCursor(Qt::WaitCursor);
        return devam;
    };
    DusumSonucu sonuc = DusumSonucu::Vazgecildi;
    if (!Dene([&] { sonuc = DusumKayit::Kaydet(Ayniyat(), Ekran(), aySorusu); })) {
        Durum(QStringLiteral("  Kayıt yapılamıyor.  "));
        return;
    }
    switch (sonuc) {
    case DusumSonucu::FisNoYok:
        Durum(QString());
        Bildir(QStringLiteral("Fiş No Yazınız. "));
        FisNo->setFocus();
        break;
    case DusumSonucu::Vazgecildi:
        Durum(QString());
        break;
    case DusumSonucu::Kaydedildi:
        Bildir(QStringLiteral("   Kayıt Tamam..   "));
        Durum(QStringLiteral("     Kayıt Yapıldı ..   "));
        FisNo->setFocus();
        break;
    }
}

void Dusum::TutanakYazdir()
{
    DusumYaz* ekran = nullptr;
    if (!Dene([this, &ekran] {
            DusumYazimi yazim{Ekran(), Text2->text(), QString()};
            yazim.KDVTOP = SayiMetni(DusumKayit::KdvToplam(yazim.d));
            ekran = new DusumYaz(Baglam(), yazim, this);
        }))
        return;
    ekran->show();
    ekran->raise();
    ekran->activateWindow();
}

void Dusum::Getir()
{
    if (FisNo->text().trimmed().isEmpty())
        return;
    DusumEkrani d = Ekran();
    bool var = false;
    if (!Dene([&] { var = DusumKayit::Getir(Ayniyat(), d); }))
        return;
    if (var) {
        FisNo->setText(d.FisNo);
        Tarih->MetinYaz(d.Tarih);
        KomisyonBaskaniAdi->setEditText(d.KomisyonBaskaniAdi);
        KomisyonBaskaniUnvani->setEditText(d.KomisyonBaskaniUnvani);
        UyeAdi->setEditText(d.UyeAdi);
        UyeUnvani->setEditText(d.UyeUnvani);
        T->HucreSec(1, T->Col());
        Guncelle();
    } else {
        Bildir(QStringLiteral("Veri tabanına böyle bir kayıt işlenmemiştir!"), QStringLiteral("  DiKKAT!!! "),
               QMessageBox::Critical);
        Temizle();
    }
    GridHazirla();
    AraToplam();
}

void Dusum::Guncelle()
{
    QList<QStringList> satirlar;
    if (!Dene([&] { satirlar = DusumKayit::Guncelle(Ayniyat(), Genel(), FisNo->text(), Baglam().CalisYil); }))
        return;
    T->HucreleriYaz(satirlar);
    if (satirlar.isEmpty())
        Durum(QStringLiteral("    Kayıt Bulunamadı ..   "));
}

void Dusum::Sil()
{
    if (Val(FisNo->text()) == 0)
        return;
    Durum(QStringLiteral("   Fiş Silinecek ..  "));
    if (!Sor(QStringLiteral("Bu Fişi Silmek istiyor musunuz ?"), QStringLiteral(" Siliniyor. "),
             QMessageBox::Critical))
        return;
    if (!Dene([this] { DusumKayit::Sil(Ayniyat(), Ekran()); }))
        return;
    Temizle();
    FisNo->setFocus();
    Durum(QStringLiteral("   Fiş Silindi .."));
}

void Dusum::Sonk()
{
    Dene([this] { FisNo->setText(QString::number(DusumKayit::Sonk(Ayniyat(), Baglam().CalisYil))); });
}

void Dusum::Temizle()
{
    // Today's day and month in the working year.
    const QDate bugun = Saat::Bugun();
    Tarih->GunYaz(QDate(Baglam().CalisYil.toInt(), bugun.month(), bugun.day()));
    T->HucreleriYaz({});
    GridHazirla();
}

void Dusum::GridHazirla()
{
    T->Hazirla(DusumKayit::Sutunlar());
    HucreDegisti(1, DusumSutun::Unite);
}

void Dusum::AraToplam()
{
    const DusumKayit::AraToplamlar toplam = DusumKayit::AraToplam(Ekran());
    Text2->setText(toplam.Text2);
    Text3->setText(toplam.Text3);
}

void Dusum::HucreDegisti(int, int sutun)
{
    Label15->setText(T->Model()->Sutunlar().at(sutun).ipucu);
    if (sutun == DusumSutun::Birimi && Hucre(sutun).isEmpty())
        HucreYaz(sutun, QStringLiteral("ADET"));
    if (sutun == DusumSutun::Miktar || sutun == DusumSutun::BirimFiyat)
        AraToplam();
}

void Dusum::Urunler()
{
    Dene([this] {
        T->ListeDoldur(m_hesKodlari, FisSatir::HesKodListesi(Genel()));
        T->ListeDoldur(m_sinifListesi, FisSatir::SinifAdlari(Genel()));
    });
}

void Dusum::Adim(int fark)
{
    const double no = Val(FisNo->text());
    if (fark < 0 && no <= 1)
        return;
    FisNo->setText(QString::number(qint64(no) + fark));
    Getir();
    AraToplam();
}

bool Dusum::FisNoTusu(QKeyEvent* olay)
{
    if (SatirGirisi::EnterMi(olay)) {
        if (FisNo->text().trimmed().isEmpty()) {
            Bildir(QStringLiteral("Bir Fiş No girmek zorundasınız.."), QString(), QMessageBox::Critical);
            return true;
        }
        Getir();
        Guncelle();
        Tarih->setFocus();
        return true;
    }
    switch (olay->key()) {
    case Qt::Key_Down:
        Tarih->setFocus();
        return true;
    case Qt::Key_Home:
        FisNo->setText(QStringLiteral("1"));
        Getir();
        AraToplam();
        return true;
    case Qt::Key_PageDown:
        Adim(1);
        return true;
    case Qt::Key_PageUp:
        Adim(-1);
        return true;
    default:
        return false;
    }
}

bool Dusum::eventFilter(QObject* nesne, QEvent* olay)
{
    switch (olay->type()) {
    case QEvent::ShortcutOverride:
        // Esc blanks the line box and hides the movement list; elsewhere it
        // closes the screen.
        if (static_cast<QKeyEvent*>(olay)->key() == Qt::Key_Escape
            && ((m_giris->TE1() && nesne == m_giris->TE1()) || nesne == L3)) {
            olay->accept();
            return true;
        }
        break;
    case QEvent::KeyPress: {
        auto* tus = static_cast<QKeyEvent*>(olay);
        if (m_giris->Tus(nesne, tus))
            return true;
        if (nesne == L3 && tus->key() == Qt::Key_Escape) {
            L3Kapat();
            T->setFocus();
            return true;
        }
        if (nesne == FisNo)
            return FisNoTusu(tus);
        break;
    }
    case QEvent::FocusIn: {
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (neden == Qt::ActiveWindowFocusReason || neden == Qt::PopupFocusReason)
            break;
        auto* kutu = qobject_cast<QComboBox*>(nesne);
        if (nesne == T->Editor() && T->Col() == DusumSutun::Unite)
            Dene([this] { T->ListeDoldur(m_uniteListesi, FisSatir::UniteAdlari(Genel())); });
        else if (kutu && kutu != HarcamaYetkilisiAdi && kutu != HarcamaYetkilisiUnvani && kutu->parent() == this)
            Dene([this, kutu] {
                ListeDoldur(kutu, DusumKayit::KomisyonDegerleri(Ayniyat(), kutu->objectName(), QString()));
            });
        break;
    }
    case QEvent::FocusOut:
        if (nesne == L3 && static_cast<QFocusEvent*>(olay)->reason() == Qt::MouseFocusReason)
            L3Kapat();
        break;
    default:
        break;
    }
    return KartEkrani::eventFilter(nesne, olay);
}

void Dusum::HesapAdGetir()
{
    const QString kod = m_giris->KodMetni();
    if (kod.isEmpty())
        return;
    std::optional<QString> ad;
    if (!Dene([&] { ad = FisSatir::MalzAdGetir(Genel(), kod); }))
        return;
    if (!ad) {
        Bildir(QStringLiteral(" Bu koda Ait bir Hesap Kod Adı bulunamadı. "));
        return;
    }
    HucreYaz(DusumSutun::MalzAdi, *ad);
    HucreYaz(DusumSutun::HesapKod, kod);
}

void Dusum::ListedenSecildi(int sutun, const QString& oge)
{
    if (sutun == DusumSutun::Unite) {
        std::optional<QString> kod;
        if (Dene([&] { kod = FisSatir::UniteKodu(Genel(), oge); }) && kod)
            HucreYaz(DusumSutun::Unite, *kod);
        return;
    }
    std::optional<FisSatir::Sinif> sinif;
    const bool koddan = sutun == DusumSutun::HesapKod;
    if (!Dene([&] { sinif = koddan ? FisSatir::KodlaSinif(Genel(), oge) : FisSatir::AdlaSinif(Genel(), oge); })
        || !sinif)
        return;
    HucreYaz(DusumSutun::HesapKod, sinif->HesapKod);
    HucreYaz(DusumSutun::MalzAdi, koddan ? sinif->MalzAdi : oge);
    HucreYaz(DusumSutun::KDV, sinif->KDV1);
    if (koddan)
        HucreYaz(DusumSutun::Birimi, sinif->Birimi);
    T->setFocus();
    T->HucreSec(T->Row(), DusumSutun::Ozellik);
}

void Dusum::HareketListesi(const QString& yoksa)
{
    const QString kod = Hucre(DusumSutun::HesapKod);
    if (kod.isEmpty()) {
        Bildir(yoksa);
        return;
    }
    FisSatir::HareketListesi liste;
    if (!Dene([&] { liste = DusumKayit::HesapHareketListe(Ayniyat(), kod); }))
        return;
    L3->Satirlar(liste.satirlar);
    L3->Basliklar(DusumKayit::HareketBasliklari());
    TxtKisi->setText(kod);
    TxtKisi->show();
    L3->show();
    L3->raise();
    L3->setFocus();
}

void Dusum::L3Kapat()
{
    L3->hide();
    TxtKisi->hide();
}

void Dusum::HareketYazdir()
{
    Yazdir([this](Yazici& p) {
        FisSatir::HareketYazdir(p, TxtKisi->text(), Hucre(DusumSutun::MalzAdi), Tarih->Metin(), L3->Anlik(),
                                QString());
    });
}

void Dusum::MalzemeListesiAc()
{
    if (!m_malzeme) {
        m_malzeme = new Dusum_L1(Baglam(), this);
        connect(m_malzeme, &Dusum_L1::SatirSecildi, this, [this](const QMap<int, QString>& hucreler) {
            for (auto i = hucreler.cbegin(); i != hucreler.cend(); ++i)
                HucreYaz(i.key(), i.value());
            // The quantity is the user's to type.
            T->HucreSec(T->Row(), DusumSutun::Miktar);
            activateWindow();
            T->setFocus();
        });
    }
    m_malzeme->show();
    m_malzeme->raise();
    m_malzeme->activateWindow();
}

void Dusum::ListeAc()
{
    if (!m_liste) {
        m_liste = new Dusulen_L(Baglam(), this);
        connect(m_liste, &Dusulen_L::DusumSecildi, this, [this](const QString& no) {
            FisNo->setText(no);
            Getir();
        });
    }
    m_liste->show();
    m_liste->raise();
    m_liste->activateWindow();
}
