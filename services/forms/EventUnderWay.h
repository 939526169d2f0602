#pragma once

#include <QPointer>

class QWidget;

namespace vellarno::forms {

class Form;

/// An event of a form or of one of its controls on its way, or the form's coming up. A form that
/// closes meanwhile, as its handlers may serve other events, is destroyed once the last of them has
/// ended.
class EventUnderWay
{
public:
    explicit EventUnderWay(QWidget& Receiver);
    ~EventUnderWay();
    EventUnderWay(const EventUnderWay&) = delete;
    EventUnderWay& operator=(const EventUnderWay&) = delete;

private:
    const QPointer<Form> form;
};

}
