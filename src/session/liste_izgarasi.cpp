#include "liste_izgarasi.h"

#include "veritabani.h"

#include <QAbstractTableModel>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QRadioButton>
#include <QKeyEvent>
#include <QSqlRecord>

#include <limits>
#include <memory>
#include <optional>

// The rows a list holds, and the query that still has rows to give.
class ListeModeli : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;
    ~ListeModeli() override { SorguKapat(); }

    int rowCount(const QModelIndex& ust = {}) const override { return ust.isValid() ? 0 : int(m_satirlar.size()); }
    int columnCount(const QModelIndex& ust = {}) const override { return ust.isValid() ? 0 : m_sutun; }

    QVariant data(const QModelIndex& i, int rol = Qt::DisplayRole) const override
    {
        if (!i.isValid() || (rol != Qt::DisplayRole && rol != Qt::EditRole))
            return {};
        return m_satirlar[i.row()].value(i.column());
    }

    QVariant headerData(int bolum, Qt::Orientation yon, int rol = Qt::DisplayRole) const override
    {
        if (yon == Qt::Horizontal && rol == Qt::DisplayRole)
            return m_basliklar.value(bolum);
        return QAbstractTableModel::headerData(bolum, yon, rol);
    }

    bool canFetchMore(const QModelIndex& ust) const override { return !ust.isValid() && m_sorgu.has_value(); }
    void fetchMore(const QModelIndex& ust) override
    {
        if (!ust.isValid())
            Oku(int(m_satirlar.size()) + ListeIzgarasi::Blok);
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
    }

    // Reads the query's rows until `kadar` rows are held or it ends.
    void Oku(int kadar)
    {
        if (!m_sorgu || kadar <= m_satirlar.size())
            return;
        QList<QStringList> yeni;
        const int sutun = m_sorgu->record().count();
        bool bitti = false;
        while (m_satirlar.size() + yeni.size() < kadar) {
            if (!m_sorgu->next()) {
                bitti = true;
                break;
            }
            QStringList satir;
            satir.reserve(sutun);
            for (int i = 0; i < sutun; ++i)
                satir << m_sorgu->value(i).toString();
            yeni << satir;
        }
        // Read to the end: let go of the file at once, writers wait for it.
        if (bitti)
            SorguKapat();
        if (yeni.isEmpty())
            return;
        beginInsertRows({}, int(m_satirlar.size()), int(m_satirlar.size() + yeni.size() - 1));
        m_satirlar.append(yeni);
        endInsertRows();
    }

    void HepsiniOku() { Oku(std::numeric_limits<int>::max()); }

    // Rows held and still to come, counted once per query.
    int Toplam()
    {
        if (!m_sorgu)
            return int(m_satirlar.size());
        if (m_toplam < 0) {
            QSqlQuery say = m_vt->Sorgu(QStringLiteral("select count(*) from (") + m_sql + u')', m_degerler);
            m_toplam = say.next() ? say.value(0).toInt() : int(m_satirlar.size());
        }
        return m_toplam;
    }

    void Koy(const QList<QStringList>& satirlar)
    {
        beginResetModel();
        SorguKapat();
        m_satirlar = satirlar;
        endResetModel();
        for (const QStringList& satir : satirlar)
            SutunGenislet(int(satir.size()));
    }

    void Ekle(const QStringList& satir)
    {
        HepsiniOku();
        SutunGenislet(int(satir.size()));
        beginInsertRows({}, int(m_satirlar.size()), int(m_satirlar.size()));
        m_satirlar.append(satir);
        endInsertRows();
    }

    void HucreYaz(int satir, int sutun, const QString& metin)
    {
        if (satir < 0 || satir >= m_satirlar.size() || sutun < 0 || sutun >= m_sutun)
            return;
        QStringList& hucreler = m_satirlar[satir];
        while (hucreler.size() <= sutun)
            hucreler << QString();
        hucreler[sutun] = metin;
        emit dataChanged(index(satir, sutun), index(satir, sutun));
    }

private:
    void SorguKapat()
    {
        m_sorgu.reset();
        m_vt.reset();
        m_sql.clear();
        m_degerler.clear();
        m_toplam = -1;
    }

    QStringList m_basliklar;
    int m_sutun = 0;
    QList<QStringList> m_satirlar;
    // The query lives on its own connection, which goes after it.
    std::unique_ptr<Veritabani> m_vt;
    std::optional<QSqlQuery> m_sorgu;
    QString m_sql;
    QVariantList m_degerler;
    int m_toplam = -1;
};

ListeIzgarasi::ListeIzgarasi(QWidget* ebeveyn) : QTableView(ebeveyn), m_model(new ListeModeli(this))
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
        setColumnWidth(i, int(m_genislikler[i] * pikselBasina));
    }
}

void ListeIzgarasi::Doldur(Veritabani& vt, const QString& sql, const QVariantList& degerler)
{
    m_model->Doldur(vt.Yol(), sql, degerler);
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

