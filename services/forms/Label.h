#pragma once

#include "services/forms/Control.h"
#include "services/forms/Look.h"

#include <QLabel>

namespace vellarno::forms {

/// A text that nobody edits: a caption, or a figure in its value box.
class Label : public ControlOf<QLabel>
{
    Q_OBJECT
    Q_PROPERTY(vellarno::forms::Look Look READ GetLook WRITE SetLook)
    Q_PROPERTY(int FontSize READ FontSize WRITE SetFontSize)
    Q_PROPERTY(bool FontBold READ FontBold WRITE SetFontBold)
    Q_PROPERTY(unsigned int ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(bool Decoration READ Decoration WRITE SetDecoration)
    Q_PROPERTY(QString AccessibleTitle READ AccessibleTitle WRITE SetAccessibleTitle)

public:
    explicit Label(QWidget* Parent = nullptr);

    std::string Caption() const { return text().toStdString(); }
    /// Lines are parted by CR LF.
    void SetCaption(const std::string& Text);
    /// Makes the label as wide as its caption, so that no click beside the caption is its own.
    void FitWidth() { SetWidth(sizeHint().width()); }
    unsigned int ForeColor() const { return foreColor; }
    void SetForeColor(unsigned int Value);
    /// A transparent background lets what lies behind show; an opaque one is its BackColor.
    void SetBackOpaque(bool Opaque);
    void SetBackColor(unsigned int Value);
    forms::Look GetLook() const { return look; }
    void SetLook(forms::Look Kind);

    /// A screen reader passes over it: another control says the same, or there is nothing to say.
    bool Decoration() const { return decoration; }
    void SetDecoration(bool IsDecoration) { decoration = IsDecoration; }
    /// The label that explains the figure: its box looks usable while that one is enabled, whose
    /// change repaints all that shares its container.
    void SetLegend(const Label& Legend) { legend = &Legend; }
    /// What a screen reader says before the caption, which follows after a colon as it changes.
    QString AccessibleTitle() const { return accessibleTitle; }
    void SetAccessibleTitle(const QString& Title);

protected:
    void paintEvent(QPaintEvent* Event) override;
    bool ClickedByMouse() const override { return true; }

private:
    void NameItself();

    forms::Look look = Look::Plain;
    unsigned int foreColor = Black;
    unsigned int backColor = WindowBackground;
    bool backOpaque = false;
    bool decoration = false;
    const Label* legend = this;
    QString accessibleTitle;
};

}
