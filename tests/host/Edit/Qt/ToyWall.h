#pragma once

#include "../ToyEditor.h"

namespace qev::test {

/// A wall with a row of every kind that the editor knows.
struct ToyWall : ToyShown
{
    ToyWall()
    {
        using Id = object::PropertyId;
        using Value = object::PropertyValue;
        auto& values = object->values;
        values[Id("Name")] = Value(std::string("Wall 1"));
        values[Id("Tag")] = Value(std::optional<std::string>());
        values[Id("Document")] = Value(std::string("plans/ground-floor.pdf"));
        values[Id("Sets.Common.Rating")] = Value(std::optional<std::string>("F30"));
        values[Id("Sets.Common.Width")] = Value(std::optional(0.24));
        values[Id("Sets.Common.IsExternal")] = Value(std::optional(true));
        values[Id("Sets.Common.LoadBearing")] = Value(std::optional<bool>());
        values[Id("Classifications.Toy")] = Value(std::string("Walls"));
        values[Id("Classifications.Toy.Identification")] = Value(std::string("Ss_25_10"));
        object->mandatory = {Id("Name"), Id("Tag")};
        object->readOnly = {Id("Document"), Id("Classifications.Toy")};
        object->references = {Id("Document")};
        object->measures[Id("Sets.Common.Width")] = "LengthMeasure";
        object->globalValues[Id("Sets.Common.Rating")] = Value(std::optional<std::string>("F90"));
        edit->rows = {ToyEdit::group(
            "Wall", {ToyEdit::leaf("Name"), ToyEdit::leaf("Tag"), ToyEdit::leaf("Document"),
                     ToyEdit::group("Classifications", {ToyEdit::leaf("Classifications.Toy")}),
                     ToyEdit::group("Sets", {ToyEdit::group("Sets.Common",
                                                            {ToyEdit::leaf("Sets.Common.Rating"),
                                                             ToyEdit::leaf("Sets.Common.Width"),
                                                             ToyEdit::leaf("Sets.Common.IsExternal"),
                                                             ToyEdit::leaf("Sets.Common.LoadBearing")})})})};
        edit->dynamicRows["Classifications.Identification"] = {
            ToyEdit::group("Instance.Classifications", {ToyEdit::leaf("Instance.Classifications.Toy."
                                                                      "Identification")})};
        edit->buttons = {{Id("Document"), {""}},
                         {Id("Classifications"), {""}},
                         {Id("Classifications.Toy"), {"delete", "edit"}},
                         {Id("Sets"), {""}},
                         {Id("Sets.Common"), {"delete", "add"}}};
        edit->textColours[Id("Tag")] = {255, 150, 60, 0};
    }
};

} // namespace qev::test
