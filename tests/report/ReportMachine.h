#pragma once

#include "report/ReportForm.h"
#include "tests/MemoryProgram.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace ostrelum {

/// A machine that answers the queries of golden/machine.tsv: a line for each query of a report, in
/// their order, and below it one for each object. A property without "=" is null.
class ReportMachine : public MemoryProgram {
public:
    ReportMachine()
    {
        std::ifstream file(OSTRELUM_TESTS_DIR "/report/golden/machine.tsv");
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with('\t'))
                script.results[queries.back()].push_back(object(line.substr(1)));
            else
                queries.push_back(line);
        }
        machine.environment["UserName"] = "Ana";
        machine.processors = 4;
        machine.metrics[SM_CMOUSEBUTTONS] = 3;
        store.values["HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full"] = "Board 7";
        store.folders["Desktop"] = "/home/ana/Desktop";
    }

    /// The query of a report about a class; the first one, if there are several.
    const std::string& query_about(const std::string& class_name) const
    {
        return *std::ranges::find_if(queries, [&](const std::string& wql) {
            return (wql + " ").find(" from " + class_name + " ") != std::string::npos;
        });
    }

    /// Changes a property of the first object of a class.
    void change(const std::string& class_name, std::string_view property, const Value& value)
    {
        Instance& first = script.results.at(query_about(class_name)).front();
        auto properties = first.properties();
        std::ranges::find(properties, property, &Instance::Property::first)->second = value;
        first = Instance(std::move(properties));
    }

    std::vector<std::string> queries;

private:
    static Instance object(const std::string& line)
    {
        std::vector<Instance::Property> properties;
        std::istringstream columns(line);
        for (std::string column; std::getline(columns, column, '\t');) {
            const auto sign = column.find('=');
            Value value;
            if (sign != std::string::npos)
                value = column.substr(sign + 1);
            if (value == Value("True") || value == Value("False"))
                value = value.truth();
            properties.emplace_back(column.substr(0, sign), value);
        }
        return Instance(std::move(properties));
    }
};

} // namespace ostrelum
