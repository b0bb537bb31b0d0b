#include "satir_izgarasi.h"

#include "bicim.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

namespace {

const IzgaraSutunu& sutunu(const QModelIndex& yer)
{
    return static_cast<const IzgaraModeli*>(yer.model())->Sutunlar().at(yer.column());
}

int twipPiksel(const QWidget* w, int twip)
{
    return twip * w->logicalDpiX() / 1440;
}

}

IzgaraDelegesi::IzgaraDelegesi(QObject* ebeveyn) : QStyledItemDelegate(ebeveyn) {}

void IzgaraDelegesi::ListeVer(int sutun, QAbstractItemModel* liste)
{
    m_listeler.insert(sutun, liste);
    const auto unut = [this, liste] { m_genislikler.remove(liste); };
    connect(liste, &QAbstractItemModel::modelReset, this, unut);
    connect(liste, &QAbstractItemModel::rowsInserted, this, unut);
    connect(liste, &QAbstractItemModel::dataChanged, this, unut);
}

int IzgaraDelegesi::ListeGenisligi(QAbstractItemModel* liste, const QFontMetrics& olcu) const
{
    const auto bilinen = m_genislikler.constFind(liste);
    if (bilinen != m_genislikler.cend())
        return *bilinen;
    int genislik = 0;
    for (int i = 0; i < liste->rowCount(); ++i)
        genislik = std::max(genislik, olcu.horizontalAdvance(liste->index(i, 0).data().toString()));
    m_genislikler.insert(liste, genislik);
    return genislik;
}

QWidget* IzgaraDelegesi::createEditor(QWidget* ebeveyn, const QStyleOptionViewItem&, const QModelIndex& yer) const
{
    const IzgaraSutunu& sutun = sutunu(yer);
    auto* ben = const_cast<IzgaraDelegesi*>(this);
    QWidget* editor = nullptr;
    switch (sutun.editor) {
    case EditorTuru::Metin: {
        auto* kutu = new QLineEdit(ebeveyn);
        connect(kutu, &QLineEdit::textChanged, ben, [ben, kutu](const QString& metin) {
            const QString buyuk = BuyukHarf(metin);
            if (buyuk != metin) {
                const int yer = kutu->cursorPosition();
                kutu->setText(buyuk);
                kutu->setCursorPosition(yer);
                return;
            }
            emit ben->commitData(kutu);
        });
        editor = kutu;
        break;
    }
    case EditorTuru::Liste: {
        auto* kutu = YazilirKutu(ebeveyn, sutun.editorAdi);
        if (QAbstractItemModel* liste = m_listeler.value(yer.column())) {
            kutu->setModel(liste);
            const int kaydirma = kutu->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
            kutu->view()->setMinimumWidth(ListeGenisligi(liste, kutu->view()->fontMetrics()) + 2 * kaydirma);
        }
        // What is typed is taken as it stands: no item has to exist.
        connect(kutu->lineEdit(), &QLineEdit::textEdited, ben, [ben, kutu] { emit ben->commitData(kutu); });
        const int no = yer.column();
        connect(kutu, &QComboBox::activated, ben,
                [ben, kutu, no](int sira) { emit ben->Secildi(no, sira, kutu->itemText(sira)); });
        editor = kutu;
        break;
    }
    case EditorTuru::Tarih: {
        auto* kutu = new TarihSecici(ebeveyn);
        connect(kutu, &QDateEdit::dateChanged, ben, [ben, kutu] { emit ben->commitData(kutu); });
        editor = kutu;
        break;
    }
    }
    editor->setObjectName(sutun.editorAdi);
    return editor;
}

void IzgaraDelegesi::setEditorData(QWidget* editor, const QModelIndex& yer) const
{
    // What comes from the cell goes back to it no more.
    const QSignalBlocker sessiz(editor);
    const QString metin = yer.data(Qt::EditRole).toString();
    if (auto* kutu = qobject_cast<QLineEdit*>(editor)) {
        if (kutu->text() != metin)
            kutu->setText(metin);
    } else if (auto* kutu = qobject_cast<QComboBox*>(editor)) {
        if (kutu->currentText() != metin)
            kutu->setEditText(metin);
    } else if (auto* kutu = qobject_cast<TarihSecici*>(editor)) {
        kutu->MetinYaz(metin);
    }
}

void IzgaraDelegesi::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& yer) const
{
    QString metin;
    if (auto* kutu = qobject_cast<QLineEdit*>(editor))
        metin = kutu->text();
    else if (auto* kutu = qobject_cast<QComboBox*>(editor))
        metin = kutu->currentText();
    else if (auto* kutu = qobject_cast<TarihSecici*>(editor))
        metin = kutu->Metin();
    model->setData(yer, metin);
}

void IzgaraDelegesi::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& secenek,
                                          const QModelIndex& yer) const
{
    // The line box stands a little larger than its cell.
    if (sutunu(yer).editor == EditorTuru::Metin)
        editor->setGeometry(secenek.rect.adjusted(0, -twipPiksel(editor, 30), twipPiksel(editor, 250),
                                                  twipPiksel(editor, 30)));
    else
        editor->setGeometry(secenek.rect);
}

void IzgaraDelegesi::destroyEditor(QWidget* editor, const QModelIndex& yer) const
{
    // An editor that leaves writes nothing more and gives up its name at
    // once: the one over the current cell is the only one the screen finds.
    QObject::disconnect(editor, nullptr, this, nullptr);
    for (const QObject* parca : editor->findChildren<QObject*>())
        QObject::disconnect(parca, nullptr, this, nullptr);
    editor->setObjectName(QString());
    QStyledItemDelegate::destroyEditor(editor, yer);
}

bool IzgaraDelegesi::eventFilter(QObject* nesne, QEvent* olay)
{
    return QObject::eventFilter(nesne, olay);
}

SatirIzgarasi::SatirIzgarasi(IzgaraModeli* model, QWidget* ebeveyn)
    : QTableView(ebeveyn), m_model(model), m_delege(new IzgaraDelegesi(this))
{
    m_model->setParent(this);
    setModel(m_model);
    setItemDelegate(m_delege);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setTabKeyNavigation(false);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    // Columns a few twips wide are practically hidden, as they always were.
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setStyleSheet(QStringLiteral("QTableView::item:focus { border: 1px solid palette(highlight); }"));
    Hazirla(m_model->Sutunlar());
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& simdiki) {
        if (!simdiki.isValid())
            return;
        EditorTasi(simdiki);
        emit HucreDegisti(simdiki.row() + 1, simdiki.column());
    });
}

void SatirIzgarasi::EditorTasi(const QModelIndex& yer)
{
    if (QWidget* eski = Editor()) {
        // The focus must not go wandering with the editor that leaves.
        if (eski->isAncestorOf(QApplication::focusWidget()) || eski->hasFocus())
            setFocus();
        closePersistentEditor(m_editorYeri);
    }
    // The line box took the text of every cell it came to and gave it back
    // upper case, whichever editor stood over the cell.
    const QString metin = yer.data().toString();
    m_model->setData(yer, BuyukHarf(metin));
    m_editorYeri = yer;
    openPersistentEditor(yer);
    emit EditorAcildi(Editor());
}

void SatirIzgarasi::ListeDoldur(QStringListModel* liste, const QStringList& ogeler)
{
    auto* kutu = qobject_cast<QComboBox*>(Editor());
    const bool bunda = kutu && kutu->model() == liste;
    const QString metin = bunda ? kutu->currentText() : QString();
    liste->setStringList(ogeler);
    if (bunda)
        kutu->setEditText(metin);
}

void SatirIzgarasi::Ortu(QWidget* ortu)
{
    m_ortu = ortu;
    m_ortu->setGeometry(geometry());
}

void SatirIzgarasi::moveEvent(QMoveEvent* olay)
{
    QTableView::moveEvent(olay);
    if (m_ortu)
        m_ortu->setGeometry(geometry());
}

void SatirIzgarasi::resizeEvent(QResizeEvent* olay)
{
    QTableView::resizeEvent(olay);
    if (m_ortu)
        m_ortu->setGeometry(geometry());
}

QWidget* SatirIzgarasi::Editor() const
{
    return m_editorYeri.isValid() ? indexWidget(m_editorYeri) : nullptr;
}

EditorTuru SatirIzgarasi::SutunEditoru(int sutun) const
{
    return m_model->Sutunlar().at(sutun).editor;
}

int SatirIzgarasi::Row() const
{
    return currentIndex().isValid() ? currentIndex().row() + 1 : 0;
}

int SatirIzgarasi::Col() const
{
    return currentIndex().isValid() ? currentIndex().column() : 0;
}

void SatirIzgarasi::HucreSec(int satir, int sutun)
{
    setCurrentIndex(m_model->index(satir - 1, sutun));
}

QString SatirIzgarasi::TextMatrix(int satir, int sutun) const
{
    return m_model->Hucre(satir, sutun);
}

void SatirIzgarasi::HucreYaz(int satir, int sutun, const QString& metin)
{
    m_model->HucreYaz(satir, sutun, metin);
}

QList<QStringList> SatirIzgarasi::Hucreler() const
{
    return m_model->Satirlar();
}

void SatirIzgarasi::HucreleriYaz(const QList<QStringList>& satirlar)
{
    m_model->SatirlariYaz(satirlar);
}

void SatirIzgarasi::Baslik(int sutun, const QString& metin)
{
    m_model->Baslik(sutun, metin);
}

void SatirIzgarasi::Genislik(int sutun, int twip)
{
    setColumnWidth(sutun, TwipPiksel(twip));
}

void SatirIzgarasi::Hazirla(const QList<IzgaraSutunu>& sutunlar)
{
    for (int c = 0; c < sutunlar.size(); ++c) {
        Baslik(c, sutunlar.at(c).baslik);
        Genislik(c, sutunlar.at(c).genislik);
    }
    HucreSec(1, 0);
}

QRect SatirIzgarasi::HucreAlani() const
{
    return visualRect(currentIndex());
}

int SatirIzgarasi::TwipPiksel(int twip) const
{
    return twipPiksel(this, twip);
}

void SatirIzgarasi::keyPressEvent(QKeyEvent* olay)
{
    // A key the editor left alone goes on to the screen, not to the grid.
    if (!hasFocus()) {
        olay->ignore();
        return;
    }
    // Ctrl with an arrow goes to the first or the last column of the row.
    if (olay->modifiers() == Qt::ControlModifier && (olay->key() == Qt::Key_Left || olay->key() == Qt::Key_Right)) {
        HucreSec(Row(), olay->key() == Qt::Key_Left ? 0 : m_model->columnCount() - 1);
        return;
    }
    QTableView::keyPressEvent(olay);
}
