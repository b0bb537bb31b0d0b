#pragma once

#include <QString>
#include <stdexcept>

// What the program tells the user when a command cannot be carried out. The
// message is Turkish and shown as it stands; the screen that ran the command
// catches it and the program goes on.
class Hata : public std::runtime_error
{
public:
    explicit Hata(const QString& mesaj) : std::runtime_error(mesaj.toStdString()), m_mesaj(mesaj) {}
    const QString& Mesaj() const { return m_mesaj; }

private:
    QString m_mesaj;
};
