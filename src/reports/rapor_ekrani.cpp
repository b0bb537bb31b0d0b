#include "rapor_ekrani.h"

#include "cikti.h"
#include "kayit.h"
#include "rapor_belgesi.h"
#include "sabit_kayit.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyle>
#include <QTreeView>

// The rows of the report as lstRapor shows them: read only, the closing
// rows in bold.
class RaporModeli : public QAbstractTableModel
{
public:
    RaporModeli(const RaporTablosu& tablo, QObject* ebeveyn) : QAbstractTableModel(ebeveyn), m_tablo(tablo) {}

    void Yenile()
    {
        beginResetModel();
        endResetModel();
    }
    int rowCount(const QModelIndex& ust) const override { return ust.isValid() ? 0 : int(m_tablo.satirlar.size()); }
    int columnCount(const QModelIndex& ust) const override { return ust.isValid() ? 0 : int(m_tablo.sutunlar.size()); }
    QVariant data(const QModelIndex& i, int rol) const override
    {
        const RaporSatiri& satir = m_tablo.satirlar.at(i.row());
        switch (rol) {
        case Qt::DisplayRole:
            return satir.hucreler.value(i.column());
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(m_tablo.sutunlar.at(i.column()).hiza | Qt::AlignVCenter);
        case Qt::FontRole:
            if (satir.tur == SatirTuru::Kapanis || satir.tur == SatirTuru::Baslik) {
                QFont kalin;
                kalin.setBold(true);
                return kalin;
            }
            return {};
        default:
            return {};
        }
    }
    QVariant headerData(int bolum, Qt::Orientation yon, int rol) const override
    {
        if (yon == Qt::Horizontal && rol == Qt::DisplayRole)
            return m_tablo.sutunlar.value(bolum).baslik;
        return {};
    }

private:
    const RaporTablosu& m_tablo;
};

RaporEkrani::RaporEkrani(const CalismaBaglami& baglam, const QString& yaziBoyu, QWidget* parent)
    : KartEkrani(baglam, parent)
{
    m_ana = new QVBoxLayout(this);
    auto* orta = new QHBoxLayout;
    m_ana->addLayout(orta, 1);

    m_model = new RaporModeli(m_tablo, this);
    lstRapor = Adli(new QTreeView(this), "lstRapor");
    lstRapor->setModel(m_model);
    lstRapor->setRootIsDecorated(false);
    lstRapor->setItemsExpandable(false);
    lstRapor->setUniformRowHeights(true);
    lstRapor->setAllColumnsShowFocus(true);
    lstRapor->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lstRapor->header()->setStretchLastSection(false);
    QFont yazi = lstRapor->font();
    yazi.setPointSize(10);
    lstRapor->setFont(yazi);
    orta->addWidget(lstRapor, 1);

    FR = Adli(new QFrame(this), "FR");
    FR->setFrameShape(QFrame::StyledPanel);
    FR->installEventFilter(this);
    auto* fr = new QVBoxLayout(FR);
    fr->setContentsMargins(4, 4, 4, 4);
    Boyut = Adli(new QLabel(FR), "Boyut");
    Boyut->setCursor(Qt::PointingHandCursor);
    Boyut->installEventFilter(this);
    fr->addWidget(Boyut, 0, Qt::AlignRight);
    // The panel scrolls where the screen is lower than its controls.
    m_kaydirma = new QScrollArea(FR);
    m_kaydirma->setFrameShape(QFrame::NoFrame);
    m_kaydirma->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_kaydirma->setWidgetResizable(true);
    m_panel = new QWidget(m_kaydirma);
    m_kaydirma->setWidget(m_panel);
    fr->addWidget(m_kaydirma, 1);
    m_panelYerlesimi = new QVBoxLayout(m_panel);
    m_panelYerlesimi->setContentsMargins(0, 0, 0, 0);
    m_panelYerlesimi->addStretch();
    orta->addWidget(FR);

    // What the paper of every report asks: the size, the orientation and
    // the page number to go on from.
    auto* yazdirma = new QGroupBox(QStringLiteral("Yazı Boyutu"), m_panel);
    auto* y = new QGridLayout(yazdirma);
    YaziBoy = Adli(new QLineEdit(yaziBoyu, yazdirma), "YaziBoy");
    YaziBoy->setToolTip(QStringLiteral("7 ile 12 Arası Rakam olmalı."));
    y->addWidget(YaziBoy, 0, 0, 1, 2);
    OpDik = Adli(new QRadioButton(QStringLiteral("Dikey"), yazdirma), "OpDik");
    OpDik->setToolTip(QStringLiteral("Geniş Kağıda Dikey Alınabilir."));
    OpYat = Adli(new QRadioButton(QStringLiteral("Yatay"), yazdirma), "OpYat");
    OpYat->setToolTip(QStringLiteral("A4 Kağıdına Yatay Alınabilir."));
    OpYat->setChecked(true);
    y->addWidget(OpDik, 1, 0);
    y->addWidget(OpYat, 1, 1);
    y->addWidget(new QLabel(QStringLiteral("Sayfa No"), yazdirma), 2, 0);
    SayfaNo = Adli(new QLineEdit(QStringLiteral("1"), yazdirma), "SayfaNo");
    y->addWidget(SayfaNo, 2, 1);
    m_panelYerlesimi->insertWidget(0, yazdirma);

    m_dugmeler = new QHBoxLayout;
    m_ana->addLayout(m_dugmeler);
    const auto dugme = [this](const char* ad, const QString& baslik) {
        auto* d = Adli(new QPushButton(baslik, this), ad);
        m_dugmeler->addWidget(d);
        return d;
    };
    Command3 = dugme("Command3", QString());
    Command12 = dugme("Command12", QStringLiteral("F3_ Yazdır"));
    CmdPdf = dugme("CmdPdf", QStringLiteral("PDF"));
    CmdCsv = dugme("CmdCsv", QStringLiteral("CSV"));
    CmdXlsx = dugme("CmdXlsx", QStringLiteral("XLSX"));
    for (QPushButton* d : {CmdPdf, CmdCsv, CmdXlsx})
        d->setToolTip(QStringLiteral("Listeyi %1 dosyası olarak kaydeder.").arg(d->text()));
    m_dugmeler->addStretch();
    Command13 = dugme("Command13", QStringLiteral("Çıkış"));
    DurumSatiriEkle(m_ana);

    connect(Command3, &QPushButton::clicked, this, [this] { Command3Calistir(); });
    connect(Command12, &QPushButton::clicked, this, &RaporEkrani::YaziciT);
    connect(CmdPdf, &QPushButton::clicked, this, [this] { DisaAktar(QStringLiteral("pdf")); });
    connect(CmdCsv, &QPushButton::clicked, this, [this] { DisaAktar(QStringLiteral("csv")); });
    connect(CmdXlsx, &QPushButton::clicked, this, [this] { DisaAktar(QStringLiteral("xlsx")); });
    connect(Command13, &QPushButton::clicked, this, &QWidget::close);
    TusTanimla(QKeySequence(Qt::Key_F3), [this] { YaziciT(); });
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Command3Calistir(); });


    Boyutlandir();
}

void RaporEkrani::BaslikKur()
{
    auto* ust = new QWidget(this);
    auto* baslik = new QHBoxLayout(ust);
    baslik->setContentsMargins(0, 0, 0, 0);
    BaslikAlani = Adli(new QLabel(ust), "BaslikAlani");
    FCins2 = Adli(new QLabel(ust), "FCins2");
    for (QLabel* e : {BaslikAlani, FCins2}) {
        QFont yazi = e->font();
        yazi.setPointSize(14);
        e->setFont(yazi);
        QPalette renk = e->palette();
        renk.setColor(QPalette::WindowText, QColor(255, 0, 0));
        e->setPalette(renk);
        baslik->addWidget(e);
    }
    baslik->addStretch();
    UsteEkle(ust);
}

void RaporEkrani::TarihleriKur()
{
    const auto tarih = [this](const char* ad, const QString& baslik) {
        QGroupBox* g = Cerceve(baslik);
        auto* kutu = Adli(new TarihSecici(g), ad);
        kutu->installEventFilter(this);
        g->layout()->addWidget(kutu);
        connect(kutu, &TarihSecici::editingFinished, this, [this] {
            if (std::pair(Tarih->date(), Tarih1->date()) != m_tarihler)
                Toplu();
        });
        return kutu;
    };
    Tarih = tarih("Tarih", QStringLiteral("Başlama Tarihi"));
    Tarih1 = tarih("Tarih1", QStringLiteral("Bitiş Tarihi"));
}

RaporEkrani::~RaporEkrani() = default;

int RaporEkrani::Piksel(int twip) const
{
    return twip * logicalDpiX() / 1440;
}

void RaporEkrani::PaneleEkle(QWidget* w)
{
    w->setParent(m_panel);
    m_panelYerlesimi->insertWidget(m_panelYeri++, w);
    GenislikAyarla();
}

QGroupBox* RaporEkrani::Cerceve(const QString& baslik)
{
    auto* g = new QGroupBox(baslik, this);
    new QVBoxLayout(g);
    PaneleEkle(g);
    return g;
}

QComboBox* RaporEkrani::SecimKutusu(QGroupBox* cerceve, const char* ad)
{
    QComboBox* k = YazilirKutu(cerceve, QString::fromLatin1(ad));
    k->installEventFilter(this);
    cerceve->layout()->addWidget(k);
    return k;
}

void RaporEkrani::AcilisTarihleri(const QString& hangi)
{
    const RaporSuzgeci acilis = RaporSuzgecleri::Acilis(Baglam().CalisYil, hangi);
    Tarih->GunYaz(acilis.Tarih);
    Tarih1->GunYaz(acilis.Tarih1);
}

RaporSuzgeci RaporEkrani::Donem() const
{
    RaporSuzgeci s;
    s.Tarih = Tarih->date();
    if (!Tarih1->Bos())
        s.Tarih1 = Tarih1->date();
    return s;
}

void RaporEkrani::TarihleriAl()
{
    m_tarihler = {Tarih->date(), Tarih1->date()};
}

void RaporEkrani::ListeleriDoldur(QComboBox*) {}

void RaporEkrani::UsteEkle(QWidget* w)
{
    m_ana->insertWidget(0, w);
}

QPushButton* RaporEkrani::Dugme(const char* ad, const QString& baslik)
{
    auto* d = Adli(new QPushButton(baslik, this), ad);
    m_dugmeler->insertWidget(m_dugmeYeri++, d);
    return d;
}

void RaporEkrani::Boyutlandir()
{
    m_genis = !m_genis;
    m_kaydirma->setVisible(m_genis);
    Boyut->setText(m_genis ? QStringLiteral(" Gizle >>") : QStringLiteral(" <<"));
    GenislikAyarla();
}

void RaporEkrani::GenislikAyarla()
{
    // Wide, the panel keeps room for its controls however the screen's
    // resolution maps the twips.
    const int icerik = m_panel->sizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent)
                       + 2 * FR->frameWidth() + 8;
    FR->setFixedWidth(m_genis ? qMax(Piksel(2000), icerik) : Piksel(500));
}

void RaporEkrani::Goster(const RaporTablosu& tablo)
{
    const bool yeniSutunlar = tablo.sutunlar.size() != m_tablo.sutunlar.size();
    m_tablo = tablo;
    m_model->Yenile();
    // The report's widths, widened where the screen's font needs more.
    for (int i = 0; i < m_tablo.sutunlar.size(); ++i) {
        const int genislik = yeniSutunlar ? Piksel(m_tablo.sutunlar.at(i).genislik) : lstRapor->columnWidth(i);
        lstRapor->resizeColumnToContents(i);
        lstRapor->setColumnWidth(i, qMax(genislik, lstRapor->columnWidth(i)));
    }
}

void RaporEkrani::ListeyiTemizle()
{
    m_tablo.satirlar.clear();
    m_model->Yenile();
}

bool RaporEkrani::Dene(const std::function<void()>& is)
{
    bool tamam = false;
    Komut([&] {
        is();
        tamam = true;
    });
    return tamam;
}

bool RaporEkrani::Yuru(int adet, const std::function<bool(int)>& adim)
{
    if (m_yuruyor)
        return false;
    m_yuruyor = true;
    m_durdur = false;
    bool tamam = true;
    for (int i = 0; i < adet && tamam; ++i) {
        Durum(QStringLiteral("  %1 / %2   Durdurmak için Esc.").arg(i + 1).arg(adet));
        // Lets Esc through between the steps.
        QApplication::processEvents();
        tamam = !m_durdur && adim(i);
    }
    Durum(m_durdur ? QStringLiteral("  Durduruldu.") : QString());
    m_yuruyor = false;
    return tamam;
}

void RaporEkrani::closeEvent(QCloseEvent* olay)
{
    // Esc and Çıkış stop a walk first; the screen closes at the next one.
    if (m_yuruyor) {
        m_durdur = true;
        olay->ignore();
        return;
    }
    KartEkrani::closeEvent(olay);
}

bool RaporEkrani::eventFilter(QObject* nesne, QEvent* olay)
{
    if ((nesne == Boyut && olay->type() == QEvent::MouseButtonRelease)
        || (nesne == FR && olay->type() == QEvent::MouseButtonDblClick)) {
        Boyutlandir();
        return true;
    }
    if ((nesne == Tarih || nesne == Tarih1) && olay->type() == QEvent::KeyPress) {
        const int tus = static_cast<QKeyEvent*>(olay)->key();
        if (tus == Qt::Key_Return || tus == Qt::Key_Enter) {
            Toplu();
            return true;
        }
    }
    // A box fills its list when the user comes to it, not when a message
    // or its own list hands the focus back.
    if (auto* kutu = qobject_cast<QComboBox*>(nesne); kutu && olay->type() == QEvent::FocusIn) {
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (neden != Qt::ActiveWindowFocusReason && neden != Qt::PopupFocusReason)
            ListeleriDoldur(kutu);
    }
    return KartEkrani::eventFilter(nesne, olay);
}

double RaporEkrani::YaziBoyu() const
{
    return Val(YaziBoy->text());
}

int RaporEkrani::Yon() const
{
    return OpYat->isChecked() ? 2 : 1;
}

QList<KagitSatiri> RaporEkrani::UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const
{
    return RaporBelgeleri::UstBilgi(sabit, tablo, Etiketler());
}

RaporTablosu RaporEkrani::UstBilgili() const
{
    RaporTablosu t = m_tablo;
    t.ustBilgi = UstBilgi(SabitKayit::Getir(Genel()).value_or(SabitSatiri()), t);
    return t;
}

void RaporEkrani::YaziciT()
{
    if (m_yuruyor)
        return;
    if (m_tablo.satirlar.isEmpty()) {
        Durum(QStringLiteral("  Listede yazdırılacak satır yok."));
        return;
    }
    Komut([this] {
        const RaporTablosu t = UstBilgili();
        const RaporKagidi kagit = Kagit();
        int sayfa = int(Val(SayfaNo->text()));
        bool bitti = false;
        CiktiyaYaz([&](Cikti& cikti) {
            std::unique_ptr<RaporBelgesi> belge = RaporBelgeleri::Kagit(cikti, kagit, YaziBoyu(), Yon(), sayfa);
            belge->Ekle(t);
            belge->Bitir();
            bitti = true;
        });
        // The pages that did not reach paper are not counted.
        if (bitti) {
            SayfaNo->setText(QString::number(sayfa));
            if (!GonderildiMesaji.isEmpty())
                Bildir(GonderildiMesaji);
        }
    });
}

void RaporEkrani::DisaAktar(const QString& uzanti)
{
    if (m_yuruyor)
        return;
    QString dosya = QFileDialog::getSaveFileName(
        this, QStringLiteral("Listeyi Kaydet"), QDir::home().filePath(windowTitle() + u'.' + uzanti),
        QStringLiteral("%1 (*.%2)").arg(uzanti.toUpper(), uzanti));
    if (dosya.isEmpty())
        return;
    if (!dosya.endsWith(u'.' + uzanti, Qt::CaseInsensitive))
        dosya += u'.' + uzanti;
    // A file is a copy of the list: the page number of the paper stays.
    int sayfa = int(Val(SayfaNo->text()));
    const bool yazildi = Dene([&] {
        const RaporTablosu t = UstBilgili();
        std::unique_ptr<RaporBelgesi> belge = RaporBelgeleri::Dosya(dosya, Kagit(), YaziBoyu(), Yon(), sayfa);
        belge->Ekle(t);
        belge->Bitir();
    });
    if (yazildi)
        Bildir(QStringLiteral("Liste yazıldı:\n%1").arg(QDir::toNativeSeparators(dosya)));
}
