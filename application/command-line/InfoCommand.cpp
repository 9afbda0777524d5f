#include "Commands.h"
#include "Core/String/Utf8.h"
#include "FileAccess.h"
#include "Output.h"

#include <iostream>

namespace qev::application {

namespace {

Json messagesAsJson(ifc::IfcFile const& file)
{
    Json messages = Json::array();
    for (step::StepMessage const& message : file.messages()) {
        Json entry = {{"line", message.line}, {"text", message.text}};
        entry["record"] = message.record ? Json(*message.record) : Json(nullptr);
        messages.push_back(std::move(entry));
    }
    return messages;
}

void printAsJson(ifc::IfcFile const& file)
{
    Json document = {{"file", str::utf8FromPath(file.path())},
                     {"schema", file.schemaName()},
                     {"originatingSystem", file.originatingSystem()},
                     {"timeStamp", file.timeStamp()},
                     {"records", file.recordCount()}};
    document["classes"] = Json(file.countsByClass());
    document["messages"] = messagesAsJson(file);
    document["furtherMessages"] = file.droppedMessages();
    printJson(document);
}

void printAsText(ifc::IfcFile const& file)
{
    printTable({{"file", str::utf8FromPath(file.path())},
                {"schema", file.schemaName()},
                {"originating system", file.originatingSystem()},
                {"time stamp", file.timeStamp()},
                {"records", std::to_string(file.recordCount())}});
    std::cout << '\n';
    std::vector<std::vector<std::string>> counts;
    for (auto const& [name, count] : file.countsByClass())
        counts.push_back({name.empty() ? "(several classes)" : name, std::to_string(count)});
    printTable(counts);
    auto const messages = file.messages();
    std::cout << '\n' << messages.size() + file.droppedMessages() << " messages\n";
    for (step::StepMessage const& message : messages)
        std::cout << message.toString() << '\n';
    if (file.droppedMessages() > 0)
        std::cout << "... and " << file.droppedMessages() << " more\n";
}

} // namespace

ExitCode runInfo(InfoOptions const& options)
{
    auto const file = openFile(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    if (!options.quick)
        file->check();
    if (options.format == Format::Json)
        printAsJson(*file);
    else
        printAsText(*file);
    return ExitCode::Success;
}

} // namespace qev::application
