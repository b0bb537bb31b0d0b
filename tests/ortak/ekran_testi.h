#pragma once

// Drives a card screen in a test: its own data folder, the screen opened on
// it, keys to the focus, double clicks on a list, a value read back.

#include "etkinlestir.h"
#include "gecici_veri.h"
#include "liste_izgarasi.h"
#include "veritabani.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

// The name of the widget with the focus; empty when none has it.
inline QString Odak()
{
    const QWidget* w = QApplication::focusWidget();
    return w ? w->objectName() : QString();
}

inline void Tus(int kod, Qt::KeyboardModifiers ek = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(kod), ek);
}

// A double click on a cell of a list (rows from 1). The widget form of
// mouseDClick sends no press before the double click: one goes first.
inline void CiftTikla(ListeIzgarasi* t, int satir, int sutun = 0)
{
    const QPoint yer = t->visualRect(t->model()->index(satir - 1, sutun)).center();
    QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, yer);
    QTest::mouseDClick(t->viewport(), Qt::LeftButton, {}, yer);
}

// The first column of a list, the heading left out.
inline QStringList IlkSutun(const ListeIzgarasi* t)
{
    QStringList s;
    for (int r = 1; r < t->Rows(); ++r)
        s << t->TextMatrix(r, 0);
    return s;
}

// The rows of a test run once for each answer to a question: "Evet" and
// "Hayır" in the column "cevap".
inline void CevapSatirlari()
{
    QTest::addColumn<QString>("cevap");
    QTest::newRow("evet") << QStringLiteral("Evet");
    QTest::newRow("hayır") << QStringLiteral("Hayır");
}

template <typename Ekran>
class EkranTesti : protected GeciciVeri
{
protected:
    QPointer<Ekran> m_ekran;

    void ac(const QString& baslik = QStringLiteral("Okul"))
    {
        m_ekran = new Ekran({QStringLiteral("2026"), QStringLiteral("3"), baslik, &veri()});
        m_ekran->show();
        Etkinlestir(m_ekran);
    }
    template <typename W = QLineEdit> W* bul(const QString& ad) const { return m_ekran->template findChild<W*>(ad); }
    QString metin(const QString& kutu) const { return bul(kutu)->text(); }
    // The first value a statement on GENEL.MDB gives.
    QVariant sql(const QString& komut, const QVariantList& degerler = {})
    {
        QSqlQuery q = veri().Genel().Sorgu(komut, degerler);
        return q.next() ? q.value(0) : QVariant();
    }
};
