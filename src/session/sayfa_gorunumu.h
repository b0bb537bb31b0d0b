#pragma once

#include "sayfa.h"

#include <QScrollArea>

// Shows one page as a sheet of paper at a zoom, scrolling when it is larger
// than the view. Zoom 1 is the paper's real size on the screen.
class SayfaGorunumu : public QScrollArea
{
    Q_OBJECT

public:
    explicit SayfaGorunumu(QWidget* ebeveyn = nullptr);

    void SayfaGoster(const Sayfa& sayfa);
    // Kept between 0.1 and 10.
    void YakinlikAyarla(double oran);
    double Yakinlik() const;

private:
    class Kagit;
    Kagit* m_kagit;
};
