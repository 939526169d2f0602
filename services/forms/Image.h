#pragma once

#include "services/forms/Control.h"
#include "services/forms/Look.h"

#include <QWidget>
#include <optional>

namespace vellarno::forms {

/// A picture of the program's resources, or a drawn ground.
class Image : public ControlOf<QWidget>
{
    Q_OBJECT
    Q_PROPERTY(vellarno::forms::Look Look READ GetLook WRITE SetLook)
    Q_PROPERTY(QString Picture READ PicturePath WRITE SetPicturePath)

public:
    explicit Image(QWidget* Parent = nullptr) : ControlOf<QWidget>(Parent) {}

    /// @param Path  of the picture among the resources.
    void SetPicture(const std::string& Path) { SetPicturePath(QString::fromStdString(Path)); }

    QString PicturePath() const { return picture; }
    void SetPicturePath(const QString& Path);
    /// Whether a picture that stays pressed is so; nothing for one that doesn't.
    std::optional<bool> Pressed() const { return pressed; }
    void SetPressed(bool On);
    forms::Look GetLook() const { return look; }
    void SetLook(forms::Look Kind);

protected:
    void paintEvent(QPaintEvent* Event) override;
    bool ClickedByMouse() const override { return true; }

private:
    QString picture;
    std::optional<bool> pressed;
    forms::Look look = Look::Plain;
};

}
