#pragma once

#include "services/forms/Form.h"

#include <QMetaProperty>
#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>

namespace vellarno::forms {

/// Controls of one kind under one name, told apart by an index: `Name_0`, `Name_1`, … in the
/// layout. The indexes may have gaps and need not start at 0.
template <class ControlClass>
class ControlArray
{
public:
    ControlArray(const Form& Parent, const std::string& Name)
        : name(QString::fromStdString(Name) + '_')
    {
        for (auto* control : Parent.findChildren<ControlClass*>()) {
            bool isNumber = false;
            const int index = control->objectName().mid(name.size()).toInt(&isNumber);
            if (isNumber && control->objectName().startsWith(name)) elements[index] = control;
        }
        if (elements.empty()) throw std::logic_error(Name);
    }

    /// The element of that index. Asking for one that isn't there is a fault of the program.
    ControlClass& operator[](int Index) const { return *elements.at(Index); }
    bool Has(int Index) const { return elements.contains(Index); }

    /// Runs over the elements in the order of their indexes.
    class Iterator
    {
    public:
        explicit Iterator(typename std::map<int, ControlClass*>::const_iterator At) : at(At) {}
        ControlClass& operator*() const { return *at->second; }
        Iterator& operator++() { return ++at, *this; }
        bool operator!=(const Iterator& Other) const { return at != Other.at; }

    private:
        typename std::map<int, ControlClass*>::const_iterator at;
    };
    Iterator begin() const { return Iterator(elements.begin()); }
    Iterator end() const { return Iterator(elements.end()); }

    /// Enables or disables the elements From to To, those that exist.
    void SetEnabled(int From, int To, bool Enabled) const
    {
        for (const auto& [index, control] : elements)
            if (index >= From && index <= To) control->SetEnabled(Enabled);
    }

    /// Gives one event of all elements to a member function that takes the index first.
    template <class Declaring, class Event, class Owner, class... Arguments>
    void Connect(Event Declaring::*Which, Owner* Object, void (Owner::*Handler)(int, Arguments...))
    {
        for (const auto& [index, control] : elements)
            control->*Which = [index = index, Object, Handler](Arguments... arguments) {
                (Object->*Handler)(index, arguments...);
            };
    }

    /// Makes a further element with the properties of element 0, hidden.
    ControlClass& Load(int Index)
    {
        ControlClass& model = (*this)[0];
        auto* made = new ControlClass(model.parentWidget()); // its container owns it
        CopyProperties(model, *made);
        made->setObjectName(name + QString::number(Index));
        made->hide();
        elements[Index] = made;
        return *made;
    }

private:
    static void CopyProperties(const ControlClass& From, ControlClass& To)
    {
        static const QStringList common = {"geometry", "font",        "toolTip",
                                           "enabled",  "focusPolicy", "cursor"};
        const QMetaObject* type = From.metaObject();
        for (int i = 0; i < type->propertyCount(); ++i) {
            const QMetaProperty property = type->property(i);
            const QLatin1String called(property.name());
            const bool own = i >= QWidget::staticMetaObject.propertyCount();
            // An empty pixmap would take the caption's place.
            if (own ? called != QLatin1String("pixmap") : common.contains(called))
                property.write(&To, property.read(&From));
        }
    }

    QString name;
    std::map<int, ControlClass*> elements;
};

}
