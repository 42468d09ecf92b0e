#pragma once

#include "report/ReportForm.h"
#include "tests/MemoryProgram.h"
#include "tests/RecordedObjects.h"

#include <algorithm>

namespace ostrelum {

/// A machine that answers the queries of golden/machine.tsv: those of a report, in their order.
class ReportProgram : public MemoryProgram {
public:
    ReportProgram()
    {
        for (auto& [query, objects] : recorded_objects("report/golden/machine.tsv")) {
            queries.push_back(query);
            script.results[query] = std::move(objects);
        }
        system_api.environment["UserName"] = "Ana";
        system_api.processors = 4;
        system_api.metrics[mouse_button_count] = 3;
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
        ostrelum::change(script.results.at(query_about(class_name)),
                         {{std::string(property), value}});
    }

    std::vector<std::string> queries;
};

} // namespace ostrelum
