#pragma once

#include "engine/Clock.h"
#include "services/GenericBas.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"

#include <QApplication>
#include <QDateTime>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>
#include <map>

namespace vellarno::test {

using Text = const QString&;

/// An empty form on which a test lays out the controls that it needs.
struct Workbench : forms::Form
{
    Workbench() : Form(forms::FormBorder::FixedSingle) { setFixedSize(400, 300); }

    template <class ControlClass>
    ControlClass& Add(const char* Name, int Left = 0, int Top = 0, int Width = 80, int Height = 20,
                      QWidget* Container = nullptr)
    {
        auto* made = new ControlClass(Container ? Container : this);
        made->setObjectName(QString::fromUtf8(Name));
        made->Move(Left, Top, Width, Height);
        made->SetVisible(true);
        return *made;
    }
};

/// A window on screen on 22/11/2026, a recorder behind it, and before it someone who goes by words.
/// Steps: a control's name gives a text box the focus and clicks anything else; <Tab> is a key;
/// digits, + and - are typed, other text in quotes; BOX:=TEXT writes; VERB:ARGUMENT as below.
/// Expectations: SUBJECT=VALUE; … or ~VALUE for a part of it. Subjects: controls
/// (txtData_\d,chkDay) or their property (chkDay.checked), log, focus, balloon, windows. Empty
/// texts show "-", or "none" where all are. Beeps and messages that no expectation of the log tells
/// are faults.
template <class FormClass>
struct Stage
{
    const QTemporaryDir folder;
    Recorder desktop;
    QPointer<FormClass> form{new FormClass}; ///< some forms delete themselves when closed

    Stage()
    {
        desktop.TempFolder = folder.path().toStdString();
        Do("clock:2026-11-22T14:05:09");
        Open(*form);
    }
    ~Stage()
    {
        delete form.data();
        Settle();
        OnTopFlag = false;
        SetClock(nullptr);
    }

    void Do(Text Steps)
    {
        for (QString step : Steps.split(' ', Qt::SkipEmptyParts)) {
            const QString verb = step.section(':', 0, 0), argument = step.section(':', 1);
            if (step[0] == '<')
                PressKey(step.mid(1, step.size() - 2));
            else if (!step[0].isLetter())
                Type(*form, step.remove('\'').toStdString());
            else if (argument.startsWith('='))
                dynamic_cast<forms::TextBox&>(At(verb)).SetText(argument.mid(1).toStdString());
            else if (step.contains(':'))
                verbs.at(verb)(argument);
            else
                verbs.at(dynamic_cast<forms::TextBox*>(&At(verb)) ? "focus" : "click")(verb);
        }
    }

    /// Plays a row: steps and expectations in turn, parted by bars.
    void Play(Text Row)
    {
        const auto parts = Row.split('|');
        if (parts.size() % 2 != 0) throw std::logic_error("steps without an expectation");
        for (int i = 0; i < parts.size(); i += 2) {
            Do(parts[i]);
            Settle();
            const QString quiet = parts[i + 1].contains("log=") ? "" : "alarms=none;";
            for (Text each : (quiet + parts[i + 1]).split(';'))
                EXPECT_TRUE(Holds(each))
                    << qPrintable(each) << "\n  after: " << qPrintable(parts[i])
                    << "\n  shows: " << qPrintable(See(each.section('=', 0, 0).trimmed()));
            desktop.Log.clear();
        }
    }

    /// What the subjects show.
    QString See(Text Subject) const
    {
        QStringList all;
        const QString property = Subject.contains('.') ? Subject.section('.', 1) : "text";
        for (Text name : Subject.section('.', 0, 0).split(','))
            all += sights.contains(name) ? sights.at(name)() : Look(name, property);
        const QString seen = all.join(' ').remove('\r').replace('\n', '/');
        if (seen.contains(QRegularExpression("^[- ]*$"))) return "none";
        return QString(seen).remove(QRegularExpression("[, ]+$")).trimmed();
    }
    /// All that stand open, by name.
    static std::multimap<QString, QWidget*> Windows()
    {
        std::multimap<QString, QWidget*> open;
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->isVisible()) open.emplace(each->objectName(), each);
        return open;
    }

private:
    QWidgetList Find(Text Name) const
    {
        const QRegularExpression name('^' + Name + '$');
        auto found = form->template findChildren<QWidget*>(name);
        found.removeIf([this](auto* each) { return each->window() != form; }); // an owned one's
        std::ranges::sort(found, {}, &QWidget::objectName);
        if (form->objectName() == Name) found.push_back(form);
        if (found.empty()) throw std::logic_error("there is no " + Name.toStdString());
        return found;
    }
    forms::Control& At(Text Name) const { return dynamic_cast<forms::Control&>(*Find(Name)[0]); }
    void Mouse(const MouseAct& Act, Text Where) const
    {
        const auto at = Where.split(',');
        at.size() == 2 ? Act(*form, at[0].toInt(), at[1].toInt()) : Act(At(Where));
    }
    void PressKey(Text Name) const
    {
        const auto key = QKeySequence::fromString(Name)[0];
        if (key.key() == Qt::Key_unknown) throw std::logic_error(Name.toStdString());
        Press(*form, key.key(), key.keyboardModifiers());
        Settle();
    }
    static void StopClock(Text Moment)
    {
        const auto at = QDateTime::fromString(Moment, Qt::ISODate);
        const auto day = static_cast<double>(QDate(1899, 12, 30).daysTo(at.date()));
        SetClock([now = day + at.time().msecsSinceStartOfDay() / 86400000.0] { return now; });
    }
    const std::map<QString, std::function<void(Text)>> verbs{
        {"click", [this](Text where) { Mouse(Click, where); }},
        {"clock", StopClock},
        {"close", [](Text window) { Windows().find(window)->second->close(); }},
        {"commit", [this](Text text) { Commit(*form->ActiveControl(), text.toStdString()); }},
        {"disable", [this](Text name) { At(name).SetEnabled(false); }},
        {"down", [this](Text where) { Mouse(MouseDown, where); }},
        {"drop", [this](Text text) { Drop(*form->ActiveControl(), text.toStdString()); }},
        {"enable", [this](Text name) { At(name).SetEnabled(true); }},
        {"focus", [this](Text name) { At(name).SetFocus(); }},
        {"forget", [this](Text) { desktop.Log.clear(); }},
        {"only", [this](Text program) { desktop.OnlyProgram = program.toStdString(); }},
        {"over", [this](Text where) { Mouse(MoveTo, where); }},
        {"paste", [this](Text text) { Paste(*form, text.toStdString()); }},
        {"soon", [this](Text step) { QTimer::singleShot(0, form, [this, step] { Do(step); }); }},
        {"until", [this](Text it) { WaitUntil([&] { return Holds(it); }); }},
        {"up", [this](Text where) { Mouse(MouseUp, where); }},
        {"wheel", [this](Text where) { Wheel(At(where), true); }}};

    bool Holds(Text Expectation) const
    {
        const QString is = See(Expectation.section('=', 0, 0).trimmed());
        const QString value = Expectation.section('=', 1).trimmed();
        return value.startsWith('~') ? is.contains(value.mid(1)) : is == value;
    }
    const std::map<QString, std::function<QString()>> sights{
        {"alarms", [this] { return sights.at("log")().remove(QRegularExpression("sound .*?, ")); }},
        {"balloon",
         [this] { // open, or about to open
             QString all;
             for (const auto* each : form->template findChildren<forms::Balloon*>())
                 all += QString::fromStdString(each->Title() + ", " + each->Text());
             return all;
         }},
        {"focus", [this] { return form->focusWidget()->objectName(); }},
        {"log", [this] { return QString::fromStdString(desktop.Log); }},
        {"windows", [] { // a pinned one has a star
             QString all;
             for (const auto& [name, each] : Windows())
                 all +=
                     name + (each->windowHandle()->flags() & Qt::WindowStaysOnTopHint ? "* " : " ");
             return all;
         }}};
    /// The controls' texts, or flags side by side.
    QString Look(Text Names, Text Property) const
    {
        QString all;
        for (const QWidget* widget : Find(Names)) {
            QVariant value = widget->property(qPrintable(Property));
            const auto* box = dynamic_cast<const forms::PictureBox*>(widget);
            const auto* cell = dynamic_cast<const forms::Label*>(widget);
            if (box && Property == "text") value = QString::fromStdString(box->PrintedText());
            if (cell && Property == "opaque") value = cell->BackOpaque();
            if (cell && Property == "whole")
                value = cell->heightForWidth(cell->width()) <= cell->height();
            if (!value.isValid()) throw std::logic_error("no property " + Property.toStdString());
            const QString text = value.toString().trimmed();
            if (value.typeId() == QMetaType::Bool)
                all += value.toBool() ? '1' : '0';
            else
                all += (all.isEmpty() ? "" : " ") + (text.isEmpty() ? "-" : text);
        }
        return all;
    }
};

/// Plays a table of scenarios. A row that begins with a name and a colon sets a new stage, and
/// "NAME = TEXT" abbreviates a text in the rows below.
template <class FormClass>
void PlayAll(const char* File, int Line, Text Table)
{
    const QRegularExpression title("^\\w+: "), abbreviation("([A-Z]+) = (.*?)(?= +[A-Z]+ = |$)");
    std::map<QString, QString> texts;
    std::unique_ptr<Stage<FormClass>> stage;
    for (QString row : Table.split('\n')) {
        for (const auto& [name, text] : texts)
            row.replace(QRegularExpression("\\b" + name + "\\b"), text);
        const testing::ScopedTrace trace(File, Line++, row.toStdString());
        for (const auto& each : abbreviation.globalMatch(row))
            texts[each.captured(1)] = each.captured(2);
        if (row.isEmpty() || row.contains(abbreviation)) continue;
        if (row.contains(title)) stage.reset(), stage = std::make_unique<Stage<FormClass>>();
        EXPECT_NO_THROW(stage->Play(row.remove(title)));
    }
}

}
