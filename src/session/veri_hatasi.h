#pragma once

#include <QString>
#include <stdexcept>

// The one exception for data errors. The message is Turkish and is shown to
// the user as it stands by the command that caught it.
class VeriHatasi : public std::runtime_error
{
public:
    explicit VeriHatasi(const QString& mesaj)
        : std::runtime_error(mesaj.toStdString()), m_mesaj(mesaj) {}
    const QString& Mesaj() const { return m_mesaj; }

private:
    QString m_mesaj;
};
