#include "menu.h"

#include "hata.h"
#include "oturum.h"
#include "turkce.h"
#include "veri.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QThread>
#include <QVBoxLayout>

#include <memory>

namespace {

const char* const hazirDegil = "Bu bölüm henüz hazır değil.";
const char* const ipucuYok = "Menü de Düğmeler üzerinde Dolaşıldığında, Açıklaması gelecektir.";

// The panel: control, caption, hint, the form it opens (or the menu it pops
// up, written as "@name"), and the mode values it writes.
struct DugmeTanimi
{
    const char* ad;
    const char* baslik;
    const char* ipucu;
    const char* hedef;
};

const DugmeTanimi dugmeler[] = {
    {"Command13", "Taşınır   Fişi",
     "Kuruma Alınan Malzeme için Taşınır Fişi Hazırlama.Giriş ve Çıkış İşlemleri.", "FIS_K"},
    {"CmdCikis", "Ambardan Çıkış",
     "Ambarda Kalan Malzemeyi Birimlere Vermek için Evrak Hazırlama.Çıkış İşlemleri.", "FIS_K"},
    {"Command1", "Kayıttan Düşme",
     "Hasarlı, Kullanım Dışı, Satılmış vs Malzemeyi Kayıttan düşmek için Evrak hazırlama. ", "Dusum"},
    {"Command2", "Malzeme Liste", "Bütün Malzeme-Taşınır Kayıtlarını Listeleme.", "Malzeme_L"},
    {"Command7", "Ünite Demirbaş Liste", "Bütün Malzeme-Taşınır Kayıtlarını Listeleme.", "DayanikListe"},
    {"Command6", "Depo Takip", "Depoda ve Kurumda Kalan Malzeme.", "DepoTakip"},
    {"Command16", "Defterler", "Demirbaş ve Tüketim Ayniyat Defterleri.", "@MDe"},
    {"Command9", "Cetvel Liste", "Dayanıklı Taşınır Liste, Depor Takip, Sayım Cetveli, Kesin Hesap Cetveli.",
     "@Rp"},
    {"cmd2", "Hesap Planı", "Tek Düzen Hesap Planı İzleme-Değiştirme.", "HESAP_K"},
    {"Command5", "Malzeme Sınıf Tanım", "Malzeme Tanımlama İşlemleri .", "SinifTani"},
    {"Command3", "Ünite Tanımla", "Birim-Ünite Tanımlama.", "Unite_TANI"},
    {"Command8", "Cari Hesap", " Kurum ile Şahıslar(Kurumlar) arası Cari Hesap İşlemler.", "CariHesap"},
    {"Command10", "Cari Hesap", "Tek Düzen Hesap Planı İzleme-Değiştirme.", "CariHesap"},
    {"Command14", "Sabit Bilgiler", "Çalışma Ay-Yıl, Yetkililer, Kurum Bilgiler.", "Sabit"},
    {"cd5", "Genel", "Tanımlama, Sabit Bilgiler vs.", "@m6"},
    {"Command4", "Klavuz", "Fiş, Defter, Rapor ve Cetvel Dökümleri için Klavuz.", "@KLV"},
    {"Command15", "Yedekle", " Dataları Yedekleme. Sıkıştırmalı(ZIP) Yedekleme.", "Yedekle"},
    {"Command11", "Command1", "", "Aktarma"},
};

// The menu bar: entries of the top level and of each submenu, in order.
// Entries kept hidden, which nothing shows, are not built.
struct GirisTanimi
{
    const char* ad;
    const char* baslik;
    const char* hedef;  // a form, or "" for a submenu whose entries follow
    const char* ust;    // the submenu it belongs to, "" at the top level
};

const GirisTanimi girisler[] = {
    {"TF2", "Taşınır Fiş", "FIS_K", ""},
    {"MT", "Malzeme Sınıf", "SinifTani", ""},
    {"Rp", "Cetvel-Liste", "", ""},
    {"SL", "Dayanıklı Taşınır Liste                     TMY-8", "DayanikListe", "Rp"},
    {"DTa", "Depo Takip", "DepoTakip", "Rp"},
    {"MBP", "Sayım Tutanağı                             TMY-12", "SayimTutanak", "Rp"},
    {"HSR", "Sayim ve Döküm Cetveli                TMY-13", "SayimCetveli", "Rp"},
    {"HC", "Hesap Cetveli                               TMY-15", "HesapCetveli", "Rp"},
    {"KHC", "Kesin Hesap Cetveli                       TMY-17", "KesinHesap", "Rp"},
    {"DYL2", "Dayanıklı Taşınır Liste 2                  TMY-8", "Dayanak2", "Rp"},
    {"AMT", "Ambar Devir ve Teslim Tutanağı      TMY-11", "DevirTeslim", "Rp"},
    {"BTL", "Birim Tüketim Liste           ", "DayanikListe", "Rp"},
    {"MDe", "Defterler", "", ""},
    {"BDe", "Tüketim Malzemeleri Defteri  TMY-1", "DefTuketim2", "MDe"},
    {"YD1", "Dayaklı Taşınır Defteri           TMY-2", "DefTuketim2", "MDe"},
    {"CHe", "Cari Hesap", "", ""},
    {"CH3", "Cari Hesap Kart ve Hareket", "CariHesap", "CHe"},
    {"CHR", "Cari Hesap Rapor", "CariHesap_L", "CHe"},
    {"m6", "Genel", "", ""},
    {"m631", "Ünite Tanımlama", "Unite_TANI", "m6"},
    {"BT", "Hesap Kod Değiştirme", "HesapDeg2", "m6"},
    {"MSK", "Malzeme Sınıf Kod Aktarma", "HesAktar", "m6"},
    {"UA1", "Ünite Aktarma", "BilgiAktar", "m6"},
    {"MA", "Makbuz Aktarma", "FisAKTAR", "m6"},
    {"SB2", "Sabit Bilgiler", "Sabit", "m6"},
    {"PY", "Programı Yenile", "Yenile", "m6"},
    {"DMS", "Detaylı Malzeme Sınıf Liste", "SinifListe", "m6"},
    {"ON", "Onarma", "Onarma", "m6"},
    {"KLV", "Klavuz", "", ""},
    {"m64", "Fiş Klavuz", "Klavuz", "KLV"},
    {"Kla", "Defter Cetvel Klavuz", "Klavuz2", "KLV"},
    {"SB", "SabitBilgi", "Sabit", ""},
    {"YD", "Yedekle", "Yedekle", ""},
    {"m68", "Hakkında", "Hakkinda", ""},
    {"Ck", "Çıkış", "", ""},
};

QVariantMap s(std::initializer_list<std::pair<const char*, QVariant>> ciftler)
{
    QVariantMap kip;
    for (const auto& [ad, deger] : ciftler)
        kip.insert(QString::fromLatin1(ad), deger);
    return kip;
}

// The mode values each command writes into its form.
QVariantMap kipi(const QString& komut)
{
    static const QMap<QString, QVariantMap> kipler = {
        {QStringLiteral("Command13"), s({{"ilk1", "1"}, {"FCins", "G"}, {"Hangi", "G"}})},
        {QStringLiteral("CmdCikis"),
         s({{"Label2", QStringLiteral("Ambardan Çıkış")}, {"ilk1", "1"}, {"FCins", "C"}, {"Hangi", "C"},
            {"CikisGizle", true}})},
        {QStringLiteral("TF2"), s({{"ilk1", "1"}})},
        {QStringLiteral("Command7"), s({{"Hangi", "D"}})},
        {QStringLiteral("SL"), s({{"Hangi", "D"}})},
        {QStringLiteral("BTL"), s({{"Hangi", "T"}})},
        {QStringLiteral("MBP"), s({{"Hangi", "D"}})},
        {QStringLiteral("HSR"), s({{"Hangi", "D"}})},
        // The ledger form is shown first and told its use afterwards.
        {QStringLiteral("BDe"), s({{"Hangi", "T"}, {"HangiSonra", true}})},
        {QStringLiteral("YD1"), s({{"Hangi", "D"}, {"HangiSonra", true}})},
        {QStringLiteral("Command8"), s({{"Hangi", "S"}})},
    };
    return kipler.value(komut);
}

}

Menu::Menu(Veri& veri, QWidget* ebeveyn)
    : QMainWindow(ebeveyn), CalisYil(new QLineEdit), CalisAy(new QLineEdit), Baslik(new QLabel),
      Picture2(new QLabel(QString::fromUtf8(ipucuYok))), Cd8(nullptr), m_veri(veri)
{
    setObjectName(QStringLiteral("Menu"));
    CalisYil->setObjectName(QStringLiteral("CalisYil"));
    CalisAy->setObjectName(QStringLiteral("CalisAy"));
    Baslik->setObjectName(QStringLiteral("Baslik"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    CalisYil->setToolTip(QStringLiteral("Çalışılan Yılı Buradan Geçici Olarak Değiştirebilirsiniz."));
    CalisAy->setToolTip(QStringLiteral("Çalışılan Ayı Buradan Geçici Olarak Değiştirebilirsiniz."));
    CalisYil->setMaximumWidth(70);
    CalisAy->setMaximumWidth(40);

    auto* merkez = new QWidget(this);
    auto* dikey = new QVBoxLayout(merkez);
    QFont buyuk = Baslik->font();
    buyuk.setPointSizeF(buyuk.pointSizeF() * 1.4);
    buyuk.setBold(true);
    Baslik->setFont(buyuk);
    dikey->addWidget(Baslik);

    auto* panel = new QWidget(merkez);
    DugmeleriKur(panel);
    dikey->addWidget(panel);

    auto* Frame3 = new QGroupBox(merkez);
    Frame3->setObjectName(QStringLiteral("Frame3"));
    auto* calisma = new QGridLayout(Frame3);
    calisma->addWidget(new QLabel(QStringLiteral("Çalışılan Yıl")), 0, 0);
    calisma->addWidget(CalisYil, 0, 1);
    calisma->addWidget(new QLabel(QStringLiteral("Çalışılan Ay")), 0, 2);
    calisma->addWidget(CalisAy, 0, 3);
    auto* Label3 = new QLabel(QStringLiteral("Mevcutron 5.1"));
    Label3->setObjectName(QStringLiteral("Label3"));
    calisma->addWidget(Label3, 0, 4, Qt::AlignRight);
    calisma->setColumnStretch(4, 1);
    dikey->addWidget(Frame3);

    Picture2->setFrameShape(QFrame::StyledPanel);
    Picture2->setWordWrap(true);
    Picture2->setMinimumHeight(36);
    dikey->addWidget(Picture2);
    setCentralWidget(merkez);

    MenuCubugunuKur();
    // Where the monthly copy says it is done.
    statusBar()->setSizeGripEnabled(false);
    // Wide enough for the whole menu bar at once.
    resize(qMax(sizeHint().width(), menuBar()->sizeHint().width()), sizeHint().height());
    for (const auto& [dugme, hedef] : std::as_const(m_dugmeler))
        if (hedef.form.startsWith(u'@'))
            connect(dugme, &QPushButton::clicked, this, [this, dugme, ad = hedef.form.mid(1)] {
                m_altMenuler.value(ad)->popup(dugme->mapToGlobal(QPoint(0, dugme->height())));
            });

    auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(esc, &QShortcut::activated, this, [this] { Cd8->setFocus(); });
    // These keys opened forms the program never had.
    for (const QKeySequence& tus : {QKeySequence(Qt::CTRL | Qt::Key_F6), QKeySequence(Qt::CTRL | Qt::Key_F9)})
        connect(new QShortcut(tus, this), &QShortcut::activated, this, &Menu::OlmayanEkran);

    EkranTanimla(QStringLiteral("Hakkinda"), [this](const CalismaBaglami&, const QVariantMap&) {
        QMessageBox::about(this, QStringLiteral("Hakkında"),
                           QStringLiteral("Taşınır Mal Yönetimi\nMevcutron 5.1"));
    });

    const CalismaBaglami baglam = Oturum::MenuBaglami(m_veri);
    CalisYil->setText(baglam.CalisYil);
    CalisAy->setText(baglam.CalisAy);
    Baslik->setText(baglam.Baslik);
    setWindowTitle(baglam.Baslik + QStringLiteral(" - ") + ProgramAdi);
}

Menu::~Menu()
{
    // The copy finishes on its own connection; the run ends after it.
    if (m_kopyaIsi)
        m_kopyaIsi->wait();
}

void Menu::AylikKopyaYaz()
{
    if (m_kopyaIsi)
        return;
    auto sonuc = std::make_shared<std::pair<QString, QString>>();  // the copy, the error
    m_kopyaIsi = QThread::create([klasor = m_veri.Klasor(), sonuc] {
        try {
            sonuc->first = Oturum::AylikKopya(klasor);
        } catch (const Hata& h) {
            sonuc->second = h.Mesaj();
        }
    });
    connect(m_kopyaIsi, &QThread::finished, this, [this, sonuc] {
        m_kopyaIsi->deleteLater();
        m_kopyaIsi = nullptr;
        if (sonuc->second.isEmpty()) {
            statusBar()->showMessage(QStringLiteral("Aylık güvenlik kopyası yazıldı: %1")
                                         .arg(QFileInfo(sonuc->first).fileName()));
        } else {
            statusBar()->showMessage(QStringLiteral("Aylık güvenlik kopyası yazılamadı."));
            QMessageBox::warning(this, windowTitle(), sonuc->second);
        }
        emit AylikKopyaBitti();
    });
    m_kopyaIsi->start();
}

void Menu::DugmeleriKur(QWidget* panel)
{
    auto* izgara = new QGridLayout(panel);
    int i = 0;
    for (const DugmeTanimi& t : dugmeler) {
        auto* dugme = new QPushButton(QString::fromUtf8(t.baslik), panel);
        dugme->setObjectName(QString::fromLatin1(t.ad));
        dugme->setMinimumHeight(34);
        izgara->addWidget(dugme, i / 3, i % 3);
        ++i;
        Bagla(dugme, {QString::fromLatin1(t.hedef), kipi(dugme->objectName())}, QString::fromUtf8(t.ipucu));
    }
    Cd8 = new QPushButton(QStringLiteral("Çıkış"), panel);
    Cd8->setObjectName(QStringLiteral("Cd8"));
    Cd8->setMinimumHeight(34);
    izgara->addWidget(Cd8, i / 3, i % 3);
    m_ipuclari.insert(Cd8, QStringLiteral("Çıkış"));
    Cd8->setToolTip(QStringLiteral("Çıkış"));
    Cd8->installEventFilter(this);
    connect(Cd8, &QPushButton::clicked, this, &Menu::Cikis);
}

void Menu::MenuCubugunuKur()
{
    for (const GirisTanimi& t : girisler) {
        const QString ad = QString::fromLatin1(t.ad);
        const QString baslik = QString::fromUtf8(t.baslik);
        const QString hedef = QString::fromLatin1(t.hedef);
        QMenu* ust = m_altMenuler.value(QString::fromLatin1(t.ust));
        if (hedef.isEmpty() && ad != QLatin1String("Ck")) {
            QMenu* alt = menuBar()->addMenu(baslik);
            alt->setObjectName(ad);
            alt->setToolTipsVisible(true);
            m_altMenuler.insert(ad, alt);
            continue;
        }
        QAction* giris = ust ? ust->addAction(baslik) : menuBar()->addAction(baslik);
        giris->setObjectName(ad);
        if (ad == QLatin1String("Ck"))
            connect(giris, &QAction::triggered, this, &Menu::Cikis);
        else
            Bagla(giris, {hedef, kipi(ad)});
    }
}

void Menu::Bagla(QPushButton* dugme, const Hedef& hedef, const QString& ipucu)
{
    m_dugmeler.append({dugme, hedef});
    m_ipuclari.insert(dugme, ipucu);
    dugme->installEventFilter(this);
    if (!hedef.form.startsWith(u'@'))
        connect(dugme, &QPushButton::clicked, this, [this, hedef] { Ac(hedef); });
    Guncelle();
}

void Menu::Bagla(QAction* giris, const Hedef& hedef)
{
    m_girisler.append({giris, hedef});
    connect(giris, &QAction::triggered, this, [this, hedef] { Ac(hedef); });
    Guncelle();
}

void Menu::EkranTanimla(const QString& form, EkranAcici acici)
{
    m_acicilar.insert(form, std::move(acici));
    Guncelle();
}

// An entry whose form has no opener yet stands disabled and says why.
void Menu::Guncelle()
{
    for (const auto& [dugme, hedef] : std::as_const(m_dugmeler)) {
        const bool var = hedef.form.startsWith(u'@') || m_acicilar.contains(hedef.form);
        dugme->setEnabled(var);
        dugme->setToolTip(var ? m_ipuclari.value(dugme) : QString::fromUtf8(hazirDegil));
    }
    for (const auto& [giris, hedef] : std::as_const(m_girisler)) {
        const bool var = m_acicilar.contains(hedef.form);
        giris->setEnabled(var);
        giris->setToolTip(var ? giris->text() : QString::fromUtf8(hazirDegil));
    }
}

void Menu::Ac(const Hedef& hedef)
{
    const auto acici = m_acicilar.constFind(hedef.form);
    if (acici == m_acicilar.constEnd())
        return;
    (*acici)(Baglam(), hedef.kip);
}

CalismaBaglami Menu::Baglam() const
{
    return {CalisYil->text(), CalisAy->text(), Baslik->text(), &m_veri};
}

void Menu::CalismaAyarla(const QString& yil, const QString& ay)
{
    CalisYil->setText(yil);
    CalisAy->setText(ay);
}

void Menu::OlmayanEkran()
{
    QMessageBox::information(this, windowTitle(), QStringLiteral("Bu tuşa bağlı bir ekran bulunmuyor."));
}

QPushButton* Menu::Dugme(const QString& ad) const
{
    return findChild<QPushButton*>(ad);
}

QAction* Menu::Giris(const QString& ad) const
{
    return findChild<QAction*>(ad);
}

bool Menu::eventFilter(QObject* nesne, QEvent* olay)
{
    auto* dugme = qobject_cast<QPushButton*>(nesne);
    if (dugme && olay->type() == QEvent::Enter) {
        const QString ipucu = m_ipuclari.value(dugme);
        if (!ipucu.isEmpty())
            Picture2->setText(ipucu);
    } else if (dugme && olay->type() == QEvent::KeyPress) {
        const int tus = static_cast<QKeyEvent*>(olay)->key();
        // Keyboard first: Enter presses the focused button.
        if (tus == Qt::Key_Return || tus == Qt::Key_Enter) {
            dugme->click();
            return true;
        }
        if (dugme == Cd8 && tus == Qt::Key_Down) {
            OlmayanEkran();
            return true;
        }
    }
    return QMainWindow::eventFilter(nesne, olay);
}

void Menu::changeEvent(QEvent* olay)
{
    if (olay->type() == QEvent::ActivationChange && isActiveWindow())
        setWindowOpacity(214.0 / 255.0);
    QMainWindow::changeEvent(olay);
}
