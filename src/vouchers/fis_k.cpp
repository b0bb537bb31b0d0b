#include "fis_k.h"

#include "bicim.h"
#include "fis_l.h"
#include "fis_toplam.h"
#include "fis_yaz.h"
#include "istek_yaz.h"
#include "kayit.h"
#include "metin_sec.h"
#include "liste_izgarasi.h"
#include "malzeme_l.h"
#include "satir_girisi.h"
#include "satir_izgarasi.h"
#include "sinif_tani.h"
#include "tek_deger.h"
#include "veritabani.h"
#include "yazilir_kutu.h"
#include "zimmet_yaz.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <QToolButton>

#include <algorithm>
#include <optional>

FIS_K::FIS_K(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Fiş Giriş-Düzeltme"));
    auto* ana = new QVBoxLayout(this);

    Label2 = BaslikEtiketi(QStringLiteral("Label2"), QStringLiteral("Giriş ve Birime Çıkış"));
    ana->addWidget(Label2);

    auto* bas = new QGridLayout;
    ana->addLayout(bas);
    const auto etiket = [this](const QString& metin, QWidget* kutu) {
        auto* e = new QLabel(metin, this);
        e->setBuddy(kutu);
        return e;
    };
    const auto metinKutusu = [this](const QString& ad) {
        auto* k = new QLineEdit(this);
        k->setObjectName(ad);
        return k;
    };
    FisNo = metinKutusu(QStringLiteral("FisNo"));
    FisNo->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    BT = new QWidget(this);
    BT->setObjectName(QStringLiteral("BT"));
    auto* oklar = new QVBoxLayout(BT);
    oklar->setContentsMargins(0, 0, 0, 0);
    oklar->setSpacing(0);
    const auto ok = [&](QToolButton*& dugme, const QString& ad, Qt::ArrowType yon) {
        dugme = new QToolButton(BT);
        dugme->setObjectName(ad);
        dugme->setArrowType(yon);
        dugme->setFixedHeight(FisNo->sizeHint().height() / 2);
        dugme->setFocusPolicy(Qt::NoFocus);
        oklar->addWidget(dugme);
    };
    ok(BTYukari, QStringLiteral("BTYukari"), Qt::UpArrow);
    ok(BTAsagi, QStringLiteral("BTAsagi"), Qt::DownArrow);
    Tarih = metinKutusu(QStringLiteral("Tarih"));
    KabulTarih = metinKutusu(QStringLiteral("KabulTarih"));
    KabulSayi = metinKutusu(QStringLiteral("KabulSayi"));
    TeslimAlan = YazilirKutu(this, QStringLiteral("TeslimAlan"));
    BelgeTur = YazilirKutu(this, QStringLiteral("BelgeTur"));
    BelgeTur->addItems({QStringLiteral("Fatura"), QStringLiteral("Karar"), QStringLiteral("Makbuz"),
                        QStringLiteral("Onay"), QStringLiteral("Protokol"), QStringLiteral("Sözleşme"),
                        QStringLiteral("Tutanak"), QStringLiteral("İstekBelgesi"), QStringLiteral("Diğer")});
    BelgeTur->setEditText(QString());
    BelgeSayi = metinKutusu(QStringLiteral("BelgeSayi"));
    NeredenGeldigi = YazilirKutu(this, QStringLiteral("NeredenGeldigi"));
    for (QWidget* k : std::initializer_list<QWidget*>{Tarih, KabulTarih, KabulSayi, BelgeSayi})
        k->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
    TeslimAlan->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    NeredenGeldigi->setMinimumWidth(fontMetrics().averageCharWidth() * 26);
    Command7 = new QPushButton(QStringLiteral("Getir"), this);
    Command7->setObjectName(QStringLiteral("Command7"));
    Label16 = etiket(QStringLiteral("Kabul Tarih"), KabulTarih);
    Label16->setObjectName(QStringLiteral("Label16"));
    Label7 = etiket(QStringLiteral("KabulSayı"), KabulSayi);
    Label7->setObjectName(QStringLiteral("Label7"));
    Label23 = etiket(QStringLiteral("Nereden Geldiği"), NeredenGeldigi);
    Label23->setObjectName(QStringLiteral("Label23"));
    bas->addWidget(etiket(QStringLiteral("Fiş No"), FisNo), 0, 0);
    auto* numara = new QHBoxLayout;
    numara->setSpacing(0);
    numara->addWidget(FisNo);
    numara->addWidget(BT);
    bas->addLayout(numara, 0, 1, Qt::AlignLeft);
    bas->addWidget(etiket(QStringLiteral("Fiş Tarih"), Tarih), 0, 2);
    bas->addWidget(Tarih, 0, 3);
    bas->addWidget(Label16, 0, 4);
    bas->addWidget(KabulTarih, 0, 5);
    bas->addWidget(Label7, 0, 6);
    bas->addWidget(KabulSayi, 0, 7);
    bas->addWidget(Command7, 0, 8, Qt::AlignLeft);
    bas->addWidget(etiket(QStringLiteral("Teslim Alan"), TeslimAlan), 1, 0);
    bas->addWidget(TeslimAlan, 1, 1);
    bas->addWidget(etiket(QStringLiteral("Belge Tür"), BelgeTur), 1, 2);
    bas->addWidget(BelgeTur, 1, 3);
    bas->addWidget(etiket(QStringLiteral("BelgeSayı"), BelgeSayi), 1, 4);
    bas->addWidget(BelgeSayi, 1, 5);
    bas->addWidget(Label23, 1, 6);
    bas->addWidget(NeredenGeldigi, 1, 7, 1, 2);
    bas->setColumnStretch(9, 1);

    Label11 = new QLabel(QStringLiteral(" <İnsert> Aşağı Kopyala, <Enter> Sağa Gitme, <Oklar> İstenilen Yöne gitme, "
                                        "<Ctrl>+<Oklar> Sağ-Sol Başa Gitme, <End>HücreSonu, <Home>HücreBaşı"),
                         this);
    Label11->setObjectName(QStringLiteral("Label11"));
    ana->addWidget(Label11);
    Label15 = new QLabel(this);
    Label15->setObjectName(QStringLiteral("Label15"));
    Label15->setFrameShape(QFrame::StyledPanel);
    ana->addWidget(Label15);

    m_hesKodlari = new QStringListModel(this);
    m_sinifListesi = new QStringListModel(this);
    m_uniteListesi = new QStringListModel(this);
    m_islemTurleri = new QStringListModel(FisKayit::IslemTurleri(), this);
    T = new SatirIzgarasi(new FisModeli, this);
    T->setObjectName(QStringLiteral("T"));
    T->Delege()->ListeVer(FisSutun::HesapKod, m_hesKodlari);
    T->Delege()->ListeVer(FisSutun::MalzAdi, m_sinifListesi);
    T->Delege()->ListeVer(FisSutun::Unite, m_uniteListesi);
    T->Delege()->ListeVer(FisSutun::IslemTur, m_islemTurleri);
    m_giris = new SatirGirisi(T, {[this] { MalzAdGetir(); }, [this](const QString& m) { Bildir(m); }}, this);
    ana->addWidget(T, 1);

    auto* alt = new QHBoxLayout;
    ana->addLayout(alt);
    const auto adEtiketi = [&](QLabel*& e, const QString& ad) {
        e = new QLabel(this);
        e->setObjectName(ad);
        e->setFrameShape(QFrame::StyledPanel);
        e->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
        alt->addWidget(e);
    };
    adEtiketi(Label13, QStringLiteral("Label13"));
    adEtiketi(Label19, QStringLiteral("Label19"));
    adEtiketi(Label20, QStringLiteral("Label20"));
    const auto toplamKutusu = [&](QLineEdit*& k, const QString& ad) {
        k = metinKutusu(ad);
        k->setReadOnly(true);
        k->setAlignment(Qt::AlignRight);
        k->setMaximumWidth(fontMetrics().averageCharWidth() * 12);
        alt->addWidget(k);
    };
    toplamKutusu(Gelen, QStringLiteral("Gelen"));
    toplamKutusu(Cikan, QStringLiteral("Cikan"));
    toplamKutusu(Kalan, QStringLiteral("Kalan"));
    for (QLineEdit* k : {Gelen, Cikan, Kalan})
        k->hide();
    toplamKutusu(GelenTop1, QStringLiteral("GelenTop1"));
    toplamKutusu(CikanTop1, QStringLiteral("CikanTop1"));
    toplamKutusu(KalanTop1, QStringLiteral("KalanTop1"));
    for (QLineEdit* k : {GelenTop1, CikanTop1, KalanTop1})
        k->hide();
    TopEleGecen = new QLabel(this);
    TopEleGecen->setObjectName(QStringLiteral("TopEleGecen"));
    TopEleGecen->hide();
    alt->addWidget(TopEleGecen);
    alt->addStretch();
    toplamKutusu(Text1, QStringLiteral("Text1"));
    toplamKutusu(Text2, QStringLiteral("Text2"));
    toplamKutusu(Text3, QStringLiteral("Text3"));

    auto* yardim = new QGridLayout;
    ana->addLayout(yardim);
    Label9 = new QLabel(QStringLiteral(" Çıkış Yapılacak ise Üniteyi Belirtiniz . Malzeme Ambarda Kalacak ise Ünite "
                                       "Belirtmeyiniz."),
                        this);
    Label9->setObjectName(QStringLiteral("Label9"));
    yardim->addWidget(Label9, 0, 0);
    yardim->addWidget(new QLabel(QStringLiteral("  Kuruş için . (Nokta) kullanınız."), this), 0, 1);
    yardim->addWidget(
        new QLabel(QStringLiteral("Ünite Belirtilmiş ise Çıkış Yapılmıştır. Ambara giren mal için Ünite Belirtmeyiniz."),
                   this),
        1, 0);
    yardim->addWidget(new QLabel(QStringLiteral(" İşlem Tür Kod : 1-8 arası Giriş, 9-19 Çıkış Kodlarıdır."), this), 1,
                      1);

    auto* dugmeler1 = new QHBoxLayout;
    auto* dugmeler2 = new QHBoxLayout;
    ana->addLayout(dugmeler1);
    ana->addLayout(dugmeler2);
    const auto dugme = [this](QHBoxLayout* sira, QPushButton*& d, const char* ad, const QString& baslik) {
        d = Adli(new QPushButton(baslik, this), ad);
        sira->addWidget(d);
    };
    dugme(dugmeler1, cd2, "cd2", QStringLiteral("F1 Kayıt"));
    dugme(dugmeler1, Cd4, "Cd4", QStringLiteral("F2  Yaz"));
    dugme(dugmeler1, cd5, "cd5", QStringLiteral("F5  Sil"));
    dugme(dugmeler1, Command2, "Command2", QStringLiteral("F6 Satırı Sil"));
    dugme(dugmeler1, CmdKDVEkle, "CmdKDVEkle", QStringLiteral("Ctrl+F6  KDV Ekle"));
    dugme(dugmeler1, Cyaz2, "Cyaz2", QStringLiteral("F7_ İstek "));
    dugme(dugmeler1, Command8, "Command8", QStringLiteral("F8 Malzeme Sınıf"));
    dugmeler1->addStretch();
    dugme(dugmeler2, Command6, "Command6", QStringLiteral("F9 Hesap Rapor"));
    dugme(dugmeler2, cd3, "cd3", QStringLiteral("F10  Malzeme Liste"));
    dugme(dugmeler2, Cmd9, "Cmd9", QStringLiteral("Shift F4 HesapYaz"));
    dugme(dugmeler2, Liste, "Liste", QStringLiteral("Liste"));
    dugme(dugmeler2, Zimmet, "Zimmet", QStringLiteral("Zimmet"));
    dugmeler2->addStretch();
    dugme(dugmeler2, cd8, "cd8", QStringLiteral("Çıkış"));
    DurumSatiriEkle(ana);

    // The movement list stands over the whole grid.
    L3 = new ListeIzgarasi(this);
    L3->setObjectName(QStringLiteral("L3"));
    L3->Genislikler(FisSatir::HareketGenislikleri());
    L3->Basliklar(FisSatir::HareketBasliklari());
    L3->setToolTip(QStringLiteral("Liste dışında herhangibir yere tıklarsanız, Hareket Listesi Kaybolur."));
    L3->hide();
    T->Ortu(L3);
    lblMahsup = metinKutusu(QStringLiteral("lblMahsup"));
    lblMahsup->setText(QStringLiteral(" KDV Oran :"));
    lblMahsup->setReadOnly(true);
    lblMahsup->setFocusPolicy(Qt::NoFocus);
    KDVOran = metinKutusu(QStringLiteral("KDVOran"));
    KDVOran->setToolTip(QStringLiteral("KDV Oranını Değiştirebilirsiniz. Enter ile işlemi Bitiriniz."));
    Label10 = new QLabel(QStringLiteral("KDV yazınız ve Enter 'a Basınız. KDV Oranını Değiştirebilirsiniz."), this);
    Label10->setObjectName(QStringLiteral("Label10"));
    Label10->setAutoFillBackground(true);
    Label10->setFrameShape(QFrame::Box);
    KdvOranGizle();
    CmdKDVEkle->setToolTip(QStringLiteral("Birim Fiyatı KDV li Hale getirir."));

    const QList<QWidget*> sekmeSirasi{FisNo, Tarih, KabulTarih, KabulSayi, TeslimAlan, BelgeTur, BelgeSayi,
                                      NeredenGeldigi, T};
    for (qsizetype i = 1; i < sekmeSirasi.size(); ++i)
        setTabOrder(sekmeSirasi[i - 1], sekmeSirasi[i]);
    for (QWidget* w : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (w->focusPolicy() != Qt::NoFocus)
            w->installEventFilter(this);

    connect(T, &SatirIzgarasi::EditorAcildi, this, [this](QWidget* editor) { editor->installEventFilter(this); });
    connect(T, &SatirIzgarasi::HucreDegisti, this, &FIS_K::HucreDegisti);
    connect(T->Delege(), &IzgaraDelegesi::Secildi, this, &FIS_K::ListedenSecildi);

    connect(BTYukari, &QToolButton::clicked, this, [this] { Adim(1, true); });
    connect(BTAsagi, &QToolButton::clicked, this, [this] { Adim(-1, true); });
    connect(Command7, &QPushButton::clicked, this, [this] {
        if (Val(FisNo->text()) == 0) {
            Bildir(QStringLiteral("Bir Fiş No girmek zorundasınız.."));
            return;
        }
        if (!Getir()) {
            SatirlariGetir();
            AraToplam();
        }
    });
    connect(cd2, &QPushButton::clicked, this, &FIS_K::Kaydet);
    connect(cd5, &QPushButton::clicked, this, &FIS_K::Sil);
    connect(Command2, &QPushButton::clicked, m_giris, &SatirGirisi::SatirSil);
    connect(Command8, &QPushButton::clicked, this, &FIS_K::SinifEkraniAc);
    connect(Command6, &QPushButton::clicked, this, &FIS_K::Command6Komutu);
    connect(Cmd9, &QPushButton::clicked, this, &FIS_K::HareketYazdir);
    connect(cd3, &QPushButton::clicked, this, [this] { MalzemeListesiAc(true); });
    connect(Cd4, &QPushButton::clicked, this, &FIS_K::FisYazdir);
    connect(CmdKDVEkle, &QPushButton::clicked, this, &FIS_K::kdvORAN2);
    connect(Cyaz2, &QPushButton::clicked, this, &FIS_K::IstekYazdir);
    connect(Zimmet, &QPushButton::clicked, this, &FIS_K::ZimmetYazdir);
    connect(Liste, &QPushButton::clicked, this, &FIS_K::ListeAc);
    connect(cd8, &QPushButton::clicked, this, &QWidget::close);

    TusTanimla(QKeySequence(Qt::Key_F1), [this] {
        if (!FisNo->text().trimmed().isEmpty())
            Kaydet();
    });
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { FisYazdir(); });
    TusTanimla(QKeySequence(Qt::Key_F3), [this] { Yeni(); });
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Sil(); });
    TusTanimla(QKeySequence(Qt::Key_F6), [this] { m_giris->SatirSil(); });
    TusTanimla(QKeySequence(Qt::CTRL | Qt::Key_F6), [this] { kdvORAN2(); });
    TusTanimla(QKeySequence(Qt::Key_F7), [this] { IstekYazdir(); });
    // F8 typed in the line editor deletes the row as well.
    TusTanimla(QKeySequence(Qt::Key_F8), [this] {
        if (m_giris->TE1() && QApplication::focusWidget() == m_giris->TE1())
            m_giris->SatirSil();
        SinifEkraniAc();
    });
    for (const Qt::KeyboardModifiers ek : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier),
                                           Qt::KeyboardModifiers(Qt::ControlModifier),
                                           Qt::KeyboardModifiers(Qt::AltModifier)})
        TusTanimla(QKeySequence(ek | Qt::Key_F9), [this] { Command6Komutu(); });
    TusTanimla(QKeySequence(Qt::Key_F10), [this] { MalzemeListesiAc(false); });
    TusTanimla(QKeySequence(Qt::Key_Insert), [this] { m_giris->AsagiKopyala(FisSatir::AsagiKopyala); });

    GridHazirla();
    if (Val(Baglam().CalisYil) < 1900) {
        Bildir(QStringLiteral(" Çalışma Yılını Kontrol ediniz. "));
    } else {
        // Today's day and month in the working year, as a cleared screen has it.
        FisEkrani bos;
        bos.CalisYil = Baglam().CalisYil;
        FisKayit::Temizle(bos);
        Tarih->setText(bos.Tarih);
        KabulTarih->setText(bos.Tarih);
        Urunler();
    }
    resize(1320, 820);
    FisNo->setFocus();
}

void FIS_K::KipAyarla(const QVariantMap& kip)
{
    for (auto i = kip.cbegin(); i != kip.cend(); ++i) {
        const QString deger = i.value().toString();
        if (i.key() == u"ilk1")
            ilk1 = deger;
        else if (i.key() == u"FCins")
            FCins = deger;
        else if (i.key() == u"Hangi")
            Hangi = deger;
        else if (i.key() == u"Label2")
            Label2->setText(deger);
        else if (i.key() == u"CikisGizle" && i.value().toBool())
            for (QWidget* w : std::initializer_list<QWidget*>{KabulSayi, KabulTarih, Label16, Label7, Label23,
                                                              NeredenGeldigi})
                w->hide();
    }
}

bool FIS_K::event(QEvent* olay)
{
    if (olay->type() == QEvent::WindowActivate)
        Etkinlesti();
    return KartEkrani::event(olay);
}

void FIS_K::Etkinlesti()
{
    if (ilk1 == u"1")
        EnSon();
    if (Hangi == u"G") {
        T->Baslik(FisSutun::Miktar, QStringLiteral("Miktarı "));
        T->Baslik(FisSutun::BelgeTarih, QStringLiteral("FaturaTarih"));
    } else {
        if (Hangi == u"C") {
            T->Baslik(FisSutun::Miktar, QString());
            T->Genislik(FisSutun::Miktar, 100);
        }
        T->Baslik(FisSutun::BelgeTarih, QStringLiteral("BelgeTarih "));
    }
}

FisEkrani FIS_K::Ekran() const
{
    FisEkrani fis;
    fis.FisNo = FisNo->text();
    fis.Tarih = Tarih->text();
    fis.FCins = FCins;
    fis.Hangi = Hangi;
    fis.CalisYil = Baglam().CalisYil;
    fis.CalisAy = Baglam().CalisAy;
    fis.KabulSayi = KabulSayi->text();
    fis.KabulTarih = KabulTarih->text();
    fis.TeslimAlan = TeslimAlan->currentText();
    fis.NeredenGeldigi = NeredenGeldigi->currentText();
    fis.BelgeTur = BelgeTur->currentText();
    fis.BelgeSayi = BelgeSayi->text();
    fis.Satirlar = T->Hucreler();
    return fis;
}

void FIS_K::BasYaz(const FisEkrani& fis)
{
    FisNo->setText(fis.FisNo);
    Tarih->setText(fis.Tarih);
    KabulTarih->setText(fis.KabulTarih);
    KabulSayi->setText(fis.KabulSayi);
    BelgeSayi->setText(fis.BelgeSayi);
    TeslimAlan->setEditText(fis.TeslimAlan);
    NeredenGeldigi->setEditText(fis.NeredenGeldigi);
    BelgeTur->setEditText(fis.BelgeTur);
}

bool FIS_K::Dene(const std::function<void()>& is, const QString& basarisiz)
{
    bool oldu = false;
    Komut([&] {
        try {
            is();
        } catch (const Hata&) {
            if (!basarisiz.isNull())
                Durum(basarisiz);
            throw;
        }
        oldu = true;
    });
    return oldu;
}

void FIS_K::AraToplam()
{
    const FisToplam::AraToplamlar toplam = FisToplam::AraToplam(Ekran());
    Text1->setText(toplam.Text1);
    Text2->setText(toplam.Text2);
    Text3->setText(toplam.Text3);
}

void FIS_K::KdvToplam()
{
    FisEkrani fis = Ekran();
    KDVTOP = SayiMetni(FisToplam::KdvToplam(fis));
    T->HucreleriYaz(fis.Satirlar);
}

FisYazimi FIS_K::Yazim() const
{
    FisYazimi yazim;
    yazim.fis = Ekran();
    yazim.IslemAd = m_islemAdlari.value(0);
    yazim.UniteAd2 = FisToplam::YazimUniteAdi(UniteAd2);
    yazim.Text2 = Text2->text();
    yazim.Text3 = Text3->text();
    yazim.KDVTOP = KDVTOP;
    return yazim;
}

void FIS_K::YazimEkraniAc(const std::function<SayfaEkrani*()>& yeni)
{
    SayfaEkrani* ekran = nullptr;
    if (!Dene([&] { ekran = yeni(); }))
        return;
    ekran->show();
    ekran->raise();
    ekran->activateWindow();
}

void FIS_K::FisYazdir()
{
    KdvToplam();
    AraToplam();
    FisYazimi yazim = Yazim();
    QString hata;
    yazim.HarfYazma = FisToplam::HarfYazma(Text3->text(), hata);
    // The voucher prints all the same, without the words.
    if (!hata.isEmpty())
        Bildir(hata, QString(), QMessageBox::Warning);
    YazimEkraniAc([&] { return new FisYaz(Baglam(), yazim, this); });
}

void FIS_K::ZimmetYazdir()
{
    UniteAd2 = m_uniteAdlari.value(0);
    KdvToplam();
    YazimEkraniAc([this] { return new ZimmetYaz(Baglam(), Yazim(), this); });
}

void FIS_K::IstekYazdir()
{
    YazimEkraniAc([this] { return new IstekYaz(Baglam(), Yazim(), this); });
}

void FIS_K::kdvORAN2()
{
    if (T->Col() != FisSutun::BirimFiyat)
        return;
    KDVOran->setText(Hucre(FisSutun::KDV).trimmed());
    // The box stands left of the price cell, its hint under it.
    const QRect alan = T->HucreAlani();
    const QPoint hucre = T->viewport()->mapTo(this, alan.topLeft());
    const int sol = std::max(0, hucre.x() - T->TwipPiksel(2950));
    lblMahsup->setGeometry(sol, hucre.y(), T->TwipPiksel(1700), alan.height());
    KDVOran->setGeometry(sol + lblMahsup->width(), hucre.y(), T->TwipPiksel(900),
                         alan.height() - T->TwipPiksel(100));
    Label10->adjustSize();
    Label10->move(sol, hucre.y() + alan.height());
    for (QWidget* w : std::initializer_list<QWidget*>{lblMahsup, KDVOran, Label10}) {
        w->show();
        w->raise();
    }
    KDVOran->setFocus();
    MetinSec(KDVOran);
}

void FIS_K::KdvOranEnter()
{
    const QString oran = KDVOran->text();
    if (const std::optional<double> fiyat = FisToplam::KdvEkle(Hucre(FisSutun::BirimFiyat), oran))
        HucreYaz(FisSutun::BirimFiyat, SayiMetni(*fiyat));
    HucreYaz(FisSutun::KDV, oran);
    T->setFocus();
    KdvOranGizle();
}

void FIS_K::KdvOranGizle()
{
    for (QWidget* w : std::initializer_list<QWidget*>{lblMahsup, KDVOran, Label10})
        w->hide();
}

void FIS_K::Kaydet()
{
    const QString onceki = DurumSatiri()->text();
    Durum(QStringLiteral("      Lütfen Bekleyiniz  ...  "));
    FisEkrani fis = Ekran();
    const auto aySorusu = [this] {
        // The question is answered under the normal pointer.
        QApplication::restoreOverrideCursor();
        const bool devam =
            Sor(QStringLiteral(" Bilgisayar Tarihi, Çalışılan Aydan Farklı. Kayda Devam edilecek mi ?. \n"
                               " (Çalışma Ay 'ını Genel, Sabit Bilgiler 'den Değiştiriniz.)"));
        QApplication::setOverrideCursor(Qt::WaitCursor);
        return devam;
    };
    KayitSonucu sonuc = KayitSonucu::Vazgecildi;
    if (!Dene([&] { sonuc = FisKayit::Kaydet(Ayniyat(), fis, aySorusu); },
              QStringLiteral("  Kayıt yapılamıyor.  ")))
        return;
    switch (sonuc) {
    case KayitSonucu::FisNoYok:
        Durum(onceki);
        Bildir(QStringLiteral("Fiş No Yazınız. "));
        FisNo->setFocus();
        break;
    case KayitSonucu::IlkSatirBos:
        Durum(onceki);
        break;
    case KayitSonucu::Vazgecildi:
        break;
    case KayitSonucu::Kaydedildi:
        // The save filled the empty dates.
        KabulTarih->setText(fis.KabulTarih);
        T->HucreleriYaz(fis.Satirlar);
        Durum(QStringLiteral("        Kayıt Yapıldı ..   "));
        FisNo->setFocus();
        break;
    }
}

bool FIS_K::Getir()
{
    if (FisNo->text().trimmed().isEmpty())
        return false;
    FisEkrani fis = Ekran();
    bool var = false;
    if (!Dene([&] { var = FisKayit::Getir(Ayniyat(), fis); }, QStringLiteral("Kayıt getirilemiyor.")))
        return false;
    if (!var) {
        Temizle();
        AraToplam();
        return false;
    }
    BasYaz(fis);
    T->HucreSec(1, T->Col());
    SatirlariGetir();
    AraToplam();
    return true;
}

void FIS_K::SatirlariGetir()
{
    FisSatirlari satirlar;
    if (!Dene([&] {
            satirlar = FisKayit::SatirlariGetir(Ayniyat(), Genel(), FisNo->text(), FCins, Baglam().CalisYil);
        },
              QStringLiteral("Kayıt getirilemiyor.")))
        return;
    if (satirlar.hucreler.isEmpty()) {
        T->HucreleriYaz({});
        Durum(QStringLiteral("   Kayıt Bulunamadı  ..  "));
        GridHazirla();
        return;
    }
    T->HucreleriYaz(satirlar.hucreler);
    m_sinifAdlari.clear();
    for (const QStringList& satir : satirlar.hucreler)
        m_sinifAdlari << satir.at(FisSutun::MalzAdi);
    m_islemAdlari = satirlar.islemAdlari;
    m_uniteAdlari = satirlar.uniteAdlari;
    HucreDegisti(T->Row(), T->Col());
}

void FIS_K::Sil()
{
    if (Val(FisNo->text().trimmed()) == 0)
        return;
    Durum(QStringLiteral("   Fiş Silinecek ..  "));
    if (!Sor(QStringLiteral("Bu Fişi Silmek istiyor musunuz ?"), QStringLiteral(" Siliniyor. "),
             QMessageBox::Critical))
        return;
    if (!Dene([this] { FisKayit::Sil(Ayniyat(), Ekran()); }))
        return;
    Temizle();
    FisNo->setFocus();
    Durum(QStringLiteral("   Fiş Silindi .."));
}

void FIS_K::EnSon()
{
    // Set first: a failing proposal must not come back at every activation.
    ilk1 = QStringLiteral("a");
    Dene([this] { FisNo->setText(QString::number(FisKayit::EnSon(Ayniyat(), FCins, Baglam().CalisYil))); });
}

void FIS_K::Temizle()
{
    FisEkrani fis = Ekran();
    FisKayit::Temizle(fis);
    BasYaz(fis);
    T->HucreleriYaz(fis.Satirlar);
    GridHazirla();
}

void FIS_K::Yeni()
{
    FisNo->clear();
    Temizle();
    EnSon();
    FisNo->setFocus();
}

void FIS_K::GridHazirla()
{
    T->Hazirla(FisSatir::Sutunlar());
    HucreDegisti(1, FisSutun::Sira);
}

void FIS_K::Urunler()
{
    Dene([this] {
        T->ListeDoldur(m_hesKodlari, FisSatir::HesKodListesi(Genel()));
        T->ListeDoldur(m_sinifListesi, FisSatir::SinifAdlari(Genel()));
    });
}

void FIS_K::Adim(int fark, bool satirlarda)
{
    if (FisNo->text().isEmpty())
        return;
    const double no = Val(FisNo->text());
    if (fark < 0 && no <= 1)
        return;
    FisNo->setText(SayiMetni(no + fark));
    if (!Getir() && satirlarda) {
        SatirlariGetir();
        AraToplam();
    }
}

QString FIS_K::Hucre(int sutun) const
{
    return T->TextMatrix(T->Row(), sutun);
}

void FIS_K::HucreYaz(int sutun, const QString& metin)
{
    T->HucreYaz(T->Row(), sutun, metin);
}

void FIS_K::HucreDegisti(int satir, int sutun)
{
    Label13->setText(m_sinifAdlari.value(satir - 1));
    Label19->setText(m_islemAdlari.value(satir - 1));
    Label20->setText(m_uniteAdlari.value(satir - 1));
    CmdKDVEkle->setVisible(sutun == FisSutun::BirimFiyat);
    Label15->setText(T->Model()->Sutunlar().at(sutun).ipucu);
    if (sutun == FisSutun::Birimi && Hucre(FisSutun::Birimi).isEmpty())
        HucreYaz(FisSutun::Birimi, QStringLiteral("ADET"));
    if (sutun == FisSutun::Miktar || sutun == FisSutun::BirimFiyat)
        AraToplam();
    const QString uniteKod = Hucre(FisSutun::Unite);
    if (sutun >= FisSutun::BelgeTarih && sutun <= FisSutun::IslemTur && Val(uniteKod) != 0)
        Dene([&] {
            UniteAd2 = AlanGetir(Genel(), QStringLiteral("Unite_K"), QStringLiteral("UniteAd"),
                                 QStringLiteral(" where UniteKod = ? "), {uniteKod});
        });
}

bool FIS_K::eventFilter(QObject* nesne, QEvent* olay)
{
    if (qobject_cast<SinifTani*>(nesne)) {
        // The class screen closed: a class saved there can be picked now.
        if (olay->type() == QEvent::Close)
            Urunler();
        return KartEkrani::eventFilter(nesne, olay);
    }
    switch (olay->type()) {
    case QEvent::ShortcutOverride:
        // Esc closes the screen only from the number; elsewhere it is a key.
        if (static_cast<QKeyEvent*>(olay)->key() == Qt::Key_Escape && nesne != FisNo) {
            olay->accept();
            return true;
        }
        break;
    case QEvent::KeyPress: {
        auto* tus = static_cast<QKeyEvent*>(olay);
        if (m_giris->Tus(nesne, tus))
            return true;
        if (tus->key() == Qt::Key_Escape) {
            EscTusu(nesne);
            return true;
        }
        if (nesne == FisNo)
            return FisNoTusu(tus);
        if (nesne == KDVOran && SatirGirisi::EnterMi(tus)) {
            KdvOranEnter();
            return true;
        }
        if (nesne == Tarih || nesne == KabulTarih || nesne == KabulSayi || nesne == TeslimAlan || nesne == BelgeTur
            || nesne == BelgeSayi || nesne == NeredenGeldigi)
            return BasTusu(static_cast<QWidget*>(nesne), tus);
        break;
    }
    case QEvent::FocusIn: {
        // The lists are read again on entering, not when a message box or a
        // list closes.
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (neden == Qt::ActiveWindowFocusReason || neden == Qt::PopupFocusReason)
            break;
        if (nesne == TeslimAlan)
            Dene([this] { ListeDoldur(TeslimAlan, FisSatir::TeslimAlanlar(Ayniyat(), FCins)); });
        else if (nesne == NeredenGeldigi)
            Dene([this] { ListeDoldur(NeredenGeldigi, FisSatir::NeredenGeldiler(Ayniyat(), FCins)); });
        else if (nesne == T->Editor() && T->Col() == FisSutun::Unite)
            Dene([this] { T->ListeDoldur(m_uniteListesi, FisSatir::UniteAdlari(Genel())); });
        break;
    }
    case QEvent::FocusOut: {
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (nesne == L3 && neden == Qt::MouseFocusReason)
            L3Kapat();
        // Leaving the rate box drops it unapplied; a message box or a menu
        // over it does not.
        else if (nesne == KDVOran && neden != Qt::ActiveWindowFocusReason && neden != Qt::PopupFocusReason)
            KdvOranGizle();
        break;
    }
    default:
        break;
    }
    return KartEkrani::eventFilter(nesne, olay);
}

void FIS_K::EscTusu(QObject* nesne)
{
    if (nesne == L3) {
        L3Kapat();
        T->setFocus();
    } else if (nesne == KDVOran) {
        T->setFocus();
        KdvOranGizle();
    } else {
        FisNo->setFocus();
    }
}

bool FIS_K::FisNoTusu(QKeyEvent* olay)
{
    if (SatirGirisi::EnterMi(olay)) {
        if (FisNo->text().trimmed().isEmpty()) {
            Bildir(QStringLiteral("Bir Fiş No girmek zorundasınız.."), QString(), QMessageBox::Critical);
            return true;
        }
        if (!Getir())
            SatirlariGetir();
        Tarih->setFocus();
        return true;
    }
    switch (olay->key()) {
    case Qt::Key_Up:
        return true;
    case Qt::Key_Down:
        Tarih->setFocus();
        return true;
    case Qt::Key_Home:
        FisNo->setText(QStringLiteral("1"));
        Getir();
        return true;
    case Qt::Key_PageDown:
        Adim(1, false);
        return true;
    case Qt::Key_PageUp:
        Adim(-1, false);
        return true;
    default:
        return false;
    }
}

bool FIS_K::BasTusu(QWidget* kutu, QKeyEvent* olay)
{
    const bool ileri = SatirGirisi::EnterMi(olay) || olay->key() == Qt::Key_Down;
    if (!ileri && olay->key() != Qt::Key_Up)
        return false;
    // The path skips what an issue voucher hides; past its end lies the grid.
    const QList<QWidget*> yol{FisNo, Tarih, KabulTarih, KabulSayi, TeslimAlan, BelgeTur, BelgeSayi, NeredenGeldigi};
    for (qsizetype i = yol.indexOf(kutu) + (ileri ? 1 : -1); i >= 0; i += ileri ? 1 : -1) {
        if (i == yol.size()) {
            T->setFocus();
            return true;
        }
        if (yol[i]->isVisibleTo(this)) {
            yol[i]->setFocus();
            return true;
        }
    }
    return true;
}

void FIS_K::MalzAdGetir()
{
    const QString kod = m_giris->KodMetni();
    if (kod.isEmpty())
        return;
    std::optional<QString> ad;
    if (!Dene([&] { ad = FisSatir::MalzAdGetir(Genel(), kod); }) || !ad)
        return;
    HucreYaz(FisSutun::MalzAdi, *ad);
    HucreYaz(FisSutun::HesapKod, kod);
}

void FIS_K::ListedenSecildi(int sutun, int sira, const QString& oge)
{
    switch (sutun) {
    case FisSutun::HesapKod:
        HesKodSecildi(oge);
        break;
    case FisSutun::MalzAdi:
        Detay3Secildi(oge);
        break;
    case FisSutun::Unite:
        UniteAdSecildi(oge);
        break;
    case FisSutun::IslemTur:
        HucreYaz(FisSutun::IslemTur, QString::number(sira + 1));
        break;
    }
}

void FIS_K::HesKodSecildi(const QString& oge)
{
    std::optional<FisSatir::Sinif> sinif;
    if (!Dene([&] { sinif = FisSatir::KodlaSinif(Genel(), oge); }) || !sinif)
        return;
    HucreYaz(FisSutun::HesapKod, sinif->HesapKod);
    HucreYaz(FisSutun::MalzAdi, sinif->MalzAdi);
    HucreYaz(FisSutun::KDV, sinif->KDV1);
    HucreYaz(FisSutun::Birimi, sinif->Birimi);
    T->setFocus();
    T->HucreSec(T->Row(), FisSutun::Ozellik);
}

void FIS_K::Detay3Secildi(const QString& ad)
{
    std::optional<FisSatir::Sinif> sinif;
    if (!Dene([&] { sinif = FisSatir::AdlaSinif(Genel(), ad); }) || !sinif)
        return;
    HucreYaz(FisSutun::HesapKod, sinif->HesapKod);
    HucreYaz(FisSutun::MalzAdi, ad);
    HucreYaz(FisSutun::KDV, sinif->KDV1);
    T->setFocus();
    T->HucreSec(T->Row(), FisSutun::Ozellik);
}

void FIS_K::UniteAdSecildi(const QString& ad)
{
    std::optional<QString> kod;
    if (!Dene([&] { kod = FisSatir::UniteKodu(Genel(), ad); }) || !kod)
        return;
    HucreYaz(FisSutun::Unite, *kod);
    while (m_uniteAdlari.size() < T->Row())
        m_uniteAdlari << QString();
    m_uniteAdlari[T->Row() - 1] = ad;
    UniteAd2 = ad;
    Label20->setText(ad);
}

void FIS_K::SinifEkraniAc()
{
    // One class screen at a time, as a form existed once.
    if (!m_sinif) {
        m_sinif = new SinifTani(Baglam(), this);
        m_sinif->Hangi = QStringLiteral("Fis_K2");
        m_sinif->AliciSec(this);
        m_sinif->installEventFilter(this);
    }
    m_sinif->show();
    m_sinif->raise();
    m_sinif->activateWindow();
}

void FIS_K::SinifListesiYenile()
{
    Urunler();
}

void FIS_K::SinifAl(const QString& hesapKod, const QString& malzAdi, const QString& birimi, const QString& kdv)
{
    HucreYaz(FisSutun::HesapKod, hesapKod);
    HucreYaz(FisSutun::MalzAdi, malzAdi);
    HucreYaz(FisSutun::Birimi, birimi);
    HucreYaz(FisSutun::SinifKDV, kdv);
    T->HucreSec(T->Row(), FisSutun::Ozellik);
}

void FIS_K::OdakAl()
{
    activateWindow();
    T->setFocus();
}

void FIS_K::MalzemeListesiAc(bool dugme)
{
    const int sutun = T->Col();
    if (dugme && (sutun == FisSutun::Sira || sutun == FisSutun::MalzAdi))
        return;
    if (!m_malzeme) {
        m_malzeme = new Malzeme_L(Baglam(), this);
        m_malzeme->AliciSec(this);
    }
    if (sutun == FisSutun::HesapKod) {
        m_malzeme->Hangi = QStringLiteral("Fis_K");
        m_malzeme->HesapKod->setText(m_giris->KodMetni());
    } else if (sutun == FisSutun::Ozellik) {
        m_malzeme->Hangi = QStringLiteral("Fis_K");
        m_malzeme->Option3->setChecked(true);
        if (Hucre(FisSutun::Ozellik).isEmpty())
            m_malzeme->HesapKod->setText(Hucre(FisSutun::HesapKod));
        else
            m_malzeme->Ozellik->setText(Hucre(FisSutun::Ozellik));
    } else if (dugme) {
        // Seen from here a double click must not fill the voucher.
        m_malzeme->Hangi = QStringLiteral("Fis");
    }
    m_malzeme->show();
    m_malzeme->raise();
    m_malzeme->activateWindow();
    m_malzeme->T->setFocus();
}

void FIS_K::MalzemeAl(const QString& malzAdi, const QString& ozellik, const QString& hesapKod,
                      const QString& birimFiyat, const QString& birimi, const QString& kdv, const QString& gelen,
                      const QString& cikan, const QString& kalan)
{
    HucreYaz(FisSutun::MalzAdi, malzAdi);
    HucreYaz(FisSutun::Ozellik, ozellik);
    HucreYaz(FisSutun::HesapKod, hesapKod);
    HucreYaz(FisSutun::BirimFiyat, birimFiyat);
    HucreYaz(FisSutun::Birimi, birimi);
    HucreYaz(FisSutun::KDV, kdv);
    T->HucreSec(T->Row(), FisSutun::Miktar);
    GelenTop1->setText(gelen);
    CikanTop1->setText(cikan);
    KalanTop1->setText(kalan);
    for (QLineEdit* k : {GelenTop1, CikanTop1, KalanTop1})
        k->show();
    activateWindow();
    T->setFocus();
}

void FIS_K::Command6Komutu()
{
    const int sutun = T->Col();
    const QString kod = Hucre(FisSutun::HesapKod);
    const QString ozellik = Hucre(FisSutun::Ozellik);
    if (kod.isEmpty() && ozellik.isEmpty()) {
        Bildir(QStringLiteral("Seçili Hesap Kod veya Özellik-Marka Yok.  Belirtiniz. "));
        return;
    }
    FisSatir::HareketListesi liste;
    bool doldu = false;
    if (sutun == FisSutun::Ozellik && !ozellik.isEmpty())
        doldu = Dene([&] { liste = FisSatir::OzellikHareketListe(Ayniyat(), ozellik); });
    else if ((sutun == FisSutun::HesapKod || sutun == FisSutun::MalzAdi) && !kod.isEmpty())
        doldu = Dene([&] { liste = FisSatir::HesapHareketListe(Ayniyat(), kod); });
    if (doldu)
        HareketGoster(liste);
    L3->show();
    L3->raise();
    Command6->hide();
    TopEleGecen->hide();
    L3->setFocus();
}

void FIS_K::HareketGoster(const FisSatir::HareketListesi& liste)
{
    L3->Satirlar(liste.satirlar);
    L3->Basliklar(FisSatir::HareketBasliklari());
    Gelen->setText(SayiMetni(liste.Gelen));
    Cikan->setText(SayiMetni(liste.Cikan));
    Kalan->setText(SayiMetni(liste.Kalan));
    for (QLineEdit* k : {Gelen, Cikan, Kalan})
        k->show();
}

void FIS_K::L3Kapat()
{
    L3->hide();
    for (QLineEdit* k : {Gelen, Cikan, Kalan})
        k->hide();
    Command6->show();
    TopEleGecen->show();
}

void FIS_K::HareketYazdir()
{
    Yazdir([this](Yazici& p) {
        FisSatir::HareketYazdir(p, Hucre(FisSutun::HesapKod), Hucre(FisSutun::MalzAdi), Tarih->text(), L3->Anlik(),
                                TopEleGecen->text());
    });
}

void FIS_K::ListeAc()
{
    if (!m_liste) {
        m_liste = new FIS_L(Baglam(), FCins, this);
        connect(m_liste, &FIS_L::FisSecildi, this, [this](const QString& no, const QString& tarih) {
            // The screen fetches in its working year only.
            if (!tarih.isEmpty() && tarih.mid(6, 4) != Baglam().CalisYil.trimmed()) {
                Bildir(QStringLiteral("%1 nolu fiş %2 yılına ait; bu ekran %3 yılında çalışıyor. Fişi açmak için "
                                      "menüden çalışılan yılı %2 yapıp fiş ekranını yeniden açınız.")
                           .arg(no, tarih.mid(6, 4), Baglam().CalisYil));
                return;
            }
            FisNo->setText(no);
            // An empty number, from an empty list, brings nothing.
            if (!Getir() && !no.trimmed().isEmpty()) {
                SatirlariGetir();
                AraToplam();
            }
        });
    }
    m_liste->show();
    m_liste->raise();
    m_liste->activateWindow();
}
