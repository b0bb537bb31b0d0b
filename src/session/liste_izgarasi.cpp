#include "liste_izgarasi.h"

#include "satir_deposu.h"
#include "veritabani.h"

#include <QAbstractTableModel>
#include <QBoxLayout>
#include <QDeadlineTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QRadioButton>
#include <QKeyEvent>
#include <QSqlRecord>
#include <QTimer>

#include <chrono>
#include <limits>
#include <memory>
#include <optional>

// The rows a list holds, and the query that still has rows to give.
class ListeModeli : public QAbstractTableModel
{
public:
    ListeModeli(QObject* ebeveyn, int pencere)
        : QAbstractTableModel(ebeveyn)
        , m_satirlar(ListeIzgarasi::Blok, pencere)
    {
        connect(&m_okuyucu, &QTimer::timeout, this, [this] { Oku(std::numeric_limits<int>::max(), Dilim); });
    }
    ~ListeModeli() override { SorguKapat(); }

    int rowCount(const QModelIndex& ust = {}) const override { return ust.isValid() ? 0 : m_satirlar.Boy(); }
    int columnCount(const QModelIndex& ust = {}) const override { return ust.isValid() ? 0 : m_sutun; }

    QVariant data(const QModelIndex& i, int rol = Qt::DisplayRole) const override
    {
        if (!i.isValid() || (rol != Qt::DisplayRole && rol != Qt::EditRole))
            return {};
        return m_satirlar.Satir(i.row()).value(i.column());
    }

    QVariant headerData(int bolum, Qt::Orientation yon, int rol = Qt::DisplayRole) const override
    {
        if (yon == Qt::Horizontal && rol == Qt::DisplayRole)
            return m_basliklar.value(bolum);
        return QAbstractTableModel::headerData(bolum, yon, rol);
    }

    void Basliklar(const QStringList& basliklar)
    {
        SutunGenislet(int(basliklar.size()));
        m_basliklar = basliklar;
        emit headerDataChanged(Qt::Horizontal, 0, m_sutun - 1);
    }

    void SutunGenislet(int sutun)
    {
        if (sutun <= m_sutun)
            return;
        beginInsertColumns({}, m_sutun, sutun - 1);
        m_sutun = sutun;
        endInsertColumns();
    }

    void Doldur(const QString& yol, const QString& sql, const QVariantList& degerler)
    {
        Koy({});
        m_vt = std::make_unique<Veritabani>(yol);
        try {
            m_sorgu.emplace(m_vt->Sorgu(sql, degerler));
        } catch (...) {
            m_vt.reset();
            throw;
        }
        m_sql = sql;
        m_degerler = degerler;
        SutunGenislet(m_sorgu->record().count());
        Oku(ListeIzgarasi::Blok);
        if (m_sorgu)
            m_okuyucu.start(0);
    }

    // Reads the query's rows until `kadar` rows are held, the query ends or
    // the time is up, handing them to the view a block at a time.
    void Oku(int kadar, std::chrono::milliseconds sure = std::chrono::milliseconds::max())
    {
        const QDeadlineTimer son(sure);
        while (m_sorgu && m_satirlar.Boy() < kadar && !son.hasExpired()) {
            QList<QStringList> yeni;
            const int sutun = m_sorgu->record().count();
            const int blokSonu = std::min(kadar, m_satirlar.Boy() + ListeIzgarasi::Blok);
            while (m_satirlar.Boy() + yeni.size() < blokSonu && !son.hasExpired()) {
                if (!m_sorgu->next()) {
                    // Read to the end: let go of the file at once, writers
                    // and the checkpoint wait for it.
                    SorguKapat();
                    break;
                }
                QStringList satir;
                satir.reserve(sutun);
                for (int i = 0; i < sutun; ++i)
                    satir << m_sorgu->value(i).toString();
                yeni << satir;
            }
            if (yeni.isEmpty())
                break;
            beginInsertRows({}, m_satirlar.Boy(), int(m_satirlar.Boy() + yeni.size() - 1));
            for (const QStringList& satir : std::as_const(yeni))
                m_satirlar.Ekle(satir);
            endInsertRows();
        }
    }

    void HepsiniOku() { Oku(std::numeric_limits<int>::max()); }

    // Rows held and still to come, counted once per query.
    int Toplam()
    {
        if (!m_sorgu)
            return m_satirlar.Boy();
        if (m_toplam < 0) {
            QSqlQuery say = m_vt->Sorgu(QStringLiteral("select count(*) from (") + m_sql + u')', m_degerler);
            m_toplam = say.next() ? say.value(0).toInt() : m_satirlar.Boy();
        }
        return m_toplam;
    }

    void Koy(const QList<QStringList>& satirlar)
    {
        beginResetModel();
        SorguKapat();
        m_satirlar.Temizle();
        for (const QStringList& satir : satirlar)
            m_satirlar.Ekle(satir);
        endResetModel();
        for (const QStringList& satir : satirlar)
            SutunGenislet(int(satir.size()));
    }

    void Ekle(const QStringList& satir)
    {
        HepsiniOku();
        SutunGenislet(int(satir.size()));
        beginInsertRows({}, m_satirlar.Boy(), m_satirlar.Boy());
        m_satirlar.Ekle(satir);
        endInsertRows();
    }

    void HucreYaz(int satir, int sutun, const QString& metin)
    {
        if (satir < 0 || satir >= m_satirlar.Boy() || sutun < 0 || sutun >= m_sutun)
            return;
        m_satirlar.Yaz(satir, sutun, metin);
        emit dataChanged(index(satir, sutun), index(satir, sutun));
    }

private:
    // Reading in the background takes this long a turn, short enough for
    // the screen to answer keys and scrolling in between.
    static constexpr std::chrono::milliseconds Dilim{15};

    void SorguKapat()
    {
        m_okuyucu.stop();
        m_sorgu.reset();
        m_vt.reset();
        m_sql.clear();
        m_degerler.clear();
        m_toplam = -1;
    }

    QStringList m_basliklar;
    int m_sutun = 0;
    // Read through from the const view side too: the window moves.
    mutable SatirDeposu m_satirlar;
    // The query lives on its own connection, which goes after it.
    std::unique_ptr<Veritabani> m_vt;
    std::optional<QSqlQuery> m_sorgu;
    QString m_sql;
    QVariantList m_degerler;
    int m_toplam = -1;
    QTimer m_okuyucu;
};

ListeIzgarasi::ListeIzgarasi(QWidget* ebeveyn, int pencere)
    : QTableView(ebeveyn)
    , m_model(new ListeModeli(this, pencere))
{
    setModel(m_model);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    setAlternatingRowColors(true);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& simdiki) {
                if (simdiki.isValid())
                    emit HucreDegisti(simdiki.row() + 1, simdiki.column());
            });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& i) { emit CiftTiklandi(i.isValid() ? i.row() + 1 : 0); });
}

ListeIzgarasi::~ListeIzgarasi() = default;

void ListeIzgarasi::Basliklar(const QStringList& basliklar)
{
    m_model->Basliklar(basliklar);
    GenislikleriUygula();
}

void ListeIzgarasi::Genislikler(const QList<int>& twipler)
{
    m_genislikler = twipler;
    m_model->SutunGenislet(int(twipler.size()));
    GenislikleriUygula();
}

void ListeIzgarasi::GenislikleriUygula()
{
    const double pikselBasina = logicalDpiX() / 1440.0;
    for (int i = 0; i < m_genislikler.size(); ++i) {
        setColumnHidden(i, m_genislikler[i] < 101);
        int piksel = int(m_genislikler[i] * pikselBasina);
        if (m_ornekler.contains(i))
            piksel = qMax(piksel, fontMetrics().horizontalAdvance(m_ornekler[i]) + 3 * fontMetrics().averageCharWidth());
        setColumnWidth(i, piksel);
    }
}

void ListeIzgarasi::Doldur(Veritabani& vt, const QString& sql, const QVariantList& degerler)
{
    m_model->Doldur(vt.Yol(), sql, degerler);
    GenislikleriUygula();
}

void ListeIzgarasi::EnAzGenislik(int sutun, const QString& ornek)
{
    m_ornekler.insert(sutun, ornek);
    GenislikleriUygula();
}

void ListeIzgarasi::Satirlar(const QList<QStringList>& satirlar)
{
    m_model->Koy(satirlar);
    GenislikleriUygula();
}

void ListeIzgarasi::SatirEkle(const QStringList& satir)
{
    m_model->Ekle(satir);
    GenislikleriUygula();
}

void ListeIzgarasi::Temizle()
{
    m_model->Koy({});
}

void ListeIzgarasi::HucreYaz(int satir, int sutun, const QString& metin)
{
    m_model->HucreYaz(satir - 1, sutun, metin);
}

int ListeIzgarasi::Rows() const
{
    return m_model->Toplam() + 1;
}

int ListeIzgarasi::Okunan() const
{
    return m_model->rowCount();
}

QString ListeIzgarasi::TextMatrix(int satir, int sutun) const
{
    if (satir == 0)
        return m_model->headerData(sutun, Qt::Horizontal).toString();
    m_model->Oku(satir);
    return m_model->data(m_model->index(satir - 1, sutun)).toString();
}

int ListeIzgarasi::Row() const
{
    const QModelIndex i = currentIndex();
    return i.isValid() ? i.row() + 1 : 0;
}

int ListeIzgarasi::Col() const
{
    const QModelIndex i = currentIndex();
    return i.isValid() ? i.column() : 0;
}

void ListeIzgarasi::SatirSec(int satir, int sutun)
{
    m_model->Oku(satir);
    setCurrentIndex(m_model->index(satir - 1, sutun));
}

Izgara ListeIzgarasi::Anlik() const
{
    m_model->HepsiniOku();
    return ModeldenIzgara(*m_model, m_genislikler);
}

void ListeIzgarasi::keyPressEvent(QKeyEvent* olay)
{
    if ((olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter) && Row() > 0) {
        emit EnterBasildi(Row());
        return;
    }
    QTableView::keyPressEvent(olay);
}

QHBoxLayout* SuzgecSatiri(ListeIzgarasi* liste, const QList<QLineEdit*>& suzgecler,
                          const QList<QRadioButton*>& siralar)
{
    const int harf = liste->fontMetrics().averageCharWidth();
    auto* satir = new QHBoxLayout;
    satir->setSpacing(0);
    int genislik = liste->frameWidth() * 2 + harf * 3;
    for (int i = 0; i < suzgecler.size(); ++i) {
        suzgecler[i]->setFixedWidth(liste->columnWidth(i));
        genislik += liste->columnWidth(i);
        satir->addWidget(suzgecler[i]);
    }
    satir->addSpacing(harf * 2);
    for (QRadioButton* secenek : siralar)
        satir->addWidget(secenek);
    satir->addStretch();
    liste->setMinimumSize(genislik, 280);
    return satir;
}

bool OkTusuListeye(ListeIzgarasi* liste, QEvent* olay)
{
    if (olay->type() != QEvent::KeyPress)
        return false;
    const int tus = static_cast<QKeyEvent*>(olay)->key();
    if (tus != Qt::Key_Up && tus != Qt::Key_Down)
        return false;
    liste->setFocus();
    return true;
}
