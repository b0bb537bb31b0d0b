#pragma once

#include "cikti.h"

class QPrinter;
class QWidget;

// A printer the caller has chosen, usually through QPrintDialog. Its own
// margins stay: they are the printable area.
class YaziciCikti : public Cikti
{
public:
    explicit YaziciCikti(QPrinter& yazici);
    bool Hazir() const override;
    void Yaz(const Belge& belge) override;

private:
    QPrinter& m_yazici;
};

// The print preview dialog, modal; the user prints or saves a PDF from it.
class OnizlemeCikti : public Cikti
{
public:
    explicit OnizlemeCikti(QWidget* ebeveyn = nullptr);
    void Yaz(const Belge& belge) override;

private:
    QWidget* m_ebeveyn;
};
