#pragma once

#include "sources/Ascii.h"
#include "tests/RecordedObjects.h"
#include "tests/Stage.h"

#include <gmock/gmock.h>

#include <set>
#include <span>

namespace ostrelum {

using Changes = std::vector<Instance::Property>;

/// The title and the value of a row, as they stand behind each other.
inline std::string shown(int row)
{
    return F1.LT(row).Caption + F1.L(row).Caption;
}

inline std::vector<std::string> shown(int first_row, int last_row)
{
    std::vector<std::string> texts;
    for (int row = first_row; row <= last_row; ++row)
        texts.push_back(shown(row));
    return texts;
}

/// Leaves all rows as another page might: texts and tooltips everywhere, values far from their
/// titles, headings on rows 1 and 8.
inline void leave_another_page()
{
    for (int row = 1; row <= 12; ++row) {
        F1.LT(row).Caption = F1.LT(row).ToolTipText = "old title";
        fit(*platform.toolkit, F1.LT(row));
        F1.L(row).Caption = "kept";
        F1.L(row).ToolTipText = "old tooltip";
        F1.L(row).Left = 0;
    }
    F1.LT(1).Font.Italic = F1.LT(8).Font.Italic = true;
}

/// The program on a service that answers for each class from machine.tsv. It gives the properties
/// that a query selects and the key; a query for a class or a property that it lacks fails.
class SectionTest : public Stage {
protected:
    SectionTest()
    {
        for (auto& [class_name, objects] : recorded_objects("sections/machine.tsv"))
            has[class_name] = objects;
        platform.get_object = [this](const std::string&) -> std::unique_ptr<ManagementService> {
            return std::make_unique<Answers>(*this);
        };
        system_api.environment["UserName"] = "  ana ";
        start_program();
    }

    void open(int section)
    {
        leave_another_page();
        script.asked.clear();
        press("LMenu", section);
    }

    std::map<std::string, ResultSet, std::less<>> has;
    std::string lacking = "no property";

private:
    struct Answers : ManagementService {
        explicit Answers(SectionTest& asked_test) : test(asked_test) {}
        ResultSet ExecQuery(std::string_view wql) override { return test.answer(wql); }
        SectionTest& test;
    };

    static bool selects(std::string_view list, const std::string& property)
    {
        const auto same = [](char a, char b) { return lower_ascii(a) == lower_ascii(b); };
        const std::string name = " " + property + ",";
        return property == "Name" || !std::ranges::search(list, name, same).empty();
    }
    ResultSet answer(std::string_view wql)
    {
        script.asked.emplace_back(wql);
        const auto from = wql.find(" from ");
        const std::string list = std::string(wql.substr(6, from - 6)) + ",";
        const auto objects = has.find(wql.substr(from + 6));
        if (objects == has.end() || selects(list, lacking))
            throw Failure("no such class or property");
        ResultSet result;
        for (const Instance& object : objects->second) {
            Changes selected = object.properties();
            std::erase_if(selected, [&](const auto& each) { return !selects(list, each.first); });
            result.emplace_back(std::move(selected));
        }
        return result;
    }
};

} // namespace ostrelum
