#include "Classification/ClassificationReader.h"

#include "Core/Platform/FileBytes.h"
#include "Core/String/Fold.h"
#include "Core/String/Utf8.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"

#include <map>
#include <set>

namespace qev::classification {

namespace {

using fc::resource::externalreference::FcClassification;
using fc::resource::externalreference::FcClassificationReference;

std::string getCode(FcClassificationReference const& reference)
{
    auto const& identification = reference.Identification.get();
    return identification && !identification->empty() ? *identification : reference.Name.get().value_or("");
}

ClassificationSystemInfo getInfo(FcClassification const& classification)
{
    return {classification.Name.get(), classification.Description.get().value_or(""),
            classification.Source.get().value_or(""), classification.Edition.get().value_or("")};
}

ClassificationReadResult readIfc(std::filesystem::path const& file)
{
    ClassificationReadResult result;
    auto const opened = ifc::IfcFile::open(file);
    for (auto const& message : opened.messages)
        result.messages.push_back(str::utf8FromPath(file.filename()) + ": " + message.toString());
    if (!opened.file)
        return result;

    std::map<fc::FcBase const*, std::vector<ClassificationCode>> codes;
    std::map<fc::FcBase const*, std::set<std::string>> known;
    auto const& data = *opened.file->data();
    for (auto const& reference : data.entities<FcClassificationReference>()) {
        auto const classification = reference->getReferencedClassification();
        auto const code = getCode(*reference);
        if (!classification || code.empty() || !known[classification.get()].insert(code).second)
            continue;
        auto const above = fc::entityCast<FcClassificationReference>(reference->ReferencedSource->entity());
        codes[classification.get()].push_back({code, reference->Name.get().value_or(""),
                                               reference->Description.get().value_or(""),
                                               above ? getCode(*above) : std::string()});
    }
    for (auto const& classification : data.entities<FcClassification>())
        if (auto found = codes.find(classification.get()); found != codes.end())
            result.systems.push_back(
                std::make_shared<ClassificationSystem>(getInfo(*classification), std::move(found->second)));
    if (result.systems.empty())
        result.messages.push_back(str::utf8FromPath(file.filename()) +
                                  ": there is no classification with codes in it");
    return result;
}

} // namespace

ClassificationReadResult readClassifications(std::filesystem::path const& file)
{
    if (str::foldCase(str::utf8FromPath(file.extension())) == ".ifc")
        return readIfc(file);
    auto const read = platform::FileBytes::read(file);
    if (!read.bytes)
        return {{}, {read.error}};
    return readClassificationTable(read.bytes->view(), file);
}

} // namespace qev::classification
