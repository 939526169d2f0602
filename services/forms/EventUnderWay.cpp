#include "services/forms/EventUnderWay.h"

#include "services/forms/Form.h"

namespace vellarno::forms {

EventUnderWay::EventUnderWay(QWidget& Receiver) : form(dynamic_cast<Form*>(Receiver.window()))
{
    if (form) ++form->eventsUnderWay;
}

EventUnderWay::~EventUnderWay()
{
    if (form && --form->eventsUnderWay == 0 && form->closed && form->parentWidget())
        form->deleteLater();
}

}
