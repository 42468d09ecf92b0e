#include "report/Documents.h"

#include "sources/Texts.h"

namespace ostrelum::inline report {
namespace {

/// One marker after the other through the whole document, so that a value that holds a marker is
/// expanded like one.
std::string expanded(std::string document, const Expansions& expansions)
{
    char marker[] = "^a";
    for (const std::string& expansion : expansions) {
        document = FillMark(document, marker, expansion);
        ++marker[1];
    }
    return document;
}

} // namespace

std::string finished_document(const DocumentFormat& format, const ReportLook& look,
                              const std::string& head, const std::string& body)
{
    std::string document = expanded(head + body, format.expansions(look));
    if (format.postprocess)
        format.postprocess(document);
    return document + format.foot(look);
}

std::string hyphens(std::size_t count)
{
    return std::string(count, '-');
}

} // namespace ostrelum::inline report
