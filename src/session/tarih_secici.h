#pragma once

#include <QDateEdit>

// A date editor that can stand empty, which it shows as a blank; its text is
// empty or "dd.MM.yyyy".
class TarihSecici : public QDateEdit
{
    Q_OBJECT

public:
    explicit TarihSecici(QWidget* ebeveyn = nullptr);

    bool Bos() const;
    QString Metin() const;
    // Sets the value without telling: an unreadable text leaves it empty.
    void MetinYaz(const QString& metin);
    void GunYaz(const QDate& gun);
};
