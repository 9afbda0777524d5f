#include "PropertySetControlFixture.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Unit/QuantityPresentation.h"

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Type = PropertySetControl::PropertyChangedNotificationType;

constexpr char path[] = "UI/FoundationClasses/Controls/PropertySetControl";
constexpr char function[] = "qev::fc::ui::PropertySetControl::";

class PropertySetControlTest : public PropertySetControlFixture
{
};

// --- Showing objects --------------------------------------------------------------------------------

TEST_F(PropertySetControlTest, ConstructionTouchesNothing)
{
    auto const& control = useToy();

    EXPECT_THAT(control.calls, IsEmpty());
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    EXPECT_THAT(formatter->log, IsEmpty());
}

TEST_F(PropertySetControlTest, ResetsThenBuildsTheSetsThenRefreshes)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");

    control.setObjects(model.data(), {wall});

    EXPECT_THAT(control.calls, ElementsAre("reset", "refreshDisplay"));
    EXPECT_THAT(control.objectsAtRefresh, ElementsAre(1u));
    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, TellsFormatterAndFilterTheFirstObjectOnly)
{
    auto& control = useToy();
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");

    control.setObjects(model.data(), {first, second});

    EXPECT_THAT(formatter->objects, ElementsAre(std::shared_ptr<FcBase>(first)));
    EXPECT_THAT(filter->objects, ElementsAre(std::shared_ptr<FcBase>(first)));
}

TEST_F(PropertySetControlTest, TellsFormatterAndFilterASingleObjectTwice)
{
    auto& control = useToy();
    std::shared_ptr<FcBase> const wall = model.wall("W1");

    control.setObject(model.data(), wall);

    EXPECT_THAT(formatter->objects, ElementsAre(wall, wall));
    EXPECT_THAT(filter->objects, ElementsAre(wall, wall));
    EXPECT_THAT(control.getObjects(), ElementsAre(wall));
}

/// Writes its name into a log that it shares with others when it is told an object.
class OrderedFilter : public ToyFilter
{
public:
    std::vector<std::string>* order = nullptr;
    void setObject(std::shared_ptr<FcBase> /*object*/) override { order->emplace_back("filter"); }
};

class OrderedFormatter : public LogFormatter
{
public:
    std::vector<std::string>* order = nullptr;
    void setObject(std::shared_ptr<Data> /*data*/, std::shared_ptr<FcBase> /*object*/) override
    {
        order->emplace_back("formatter");
    }
};

TEST_F(PropertySetControlTest, TheFilterIsToldAnObjectBeforeTheFormatter)
{
    std::vector<std::string> order;
    auto const orderedFilter = std::make_shared<OrderedFilter>();
    auto const orderedFormatter = std::make_shared<OrderedFormatter>();
    orderedFilter->order = &order;
    orderedFormatter->order = &order;
    filter = orderedFilter;
    formatter = orderedFormatter;
    auto& control = useToy();

    control.setObjects(model.data(), {model.wall("W1"), model.wall("W2")});
    EXPECT_THAT(order, ElementsAre("filter", "formatter"));

    order.clear();
    control.setObject(model.data(), model.wall("W3"));
    EXPECT_THAT(order, ElementsAre("filter", "formatter", "filter", "formatter"));
}

TEST_F(PropertySetControlTest, WorksWithoutFilterAndFormatter)
{
    filter.reset();
    formatter.reset();
    auto& control = useToy();

    control.setObject(model.data(), model.wall("W1"));

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, AnEmptyListTellsNobodyAndStillRefreshes)
{
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));
    formatter->log.clear();
    filter->objects.clear();
    control.calls.clear();

    control.setObjects(model.data(), {});

    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(filter->objects, IsEmpty());
    EXPECT_THAT(control.calls, ElementsAre("reset", "refreshDisplay"));
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    // Building sets without objects would have been reported.
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(PropertySetControlTest, TakesItsOwnListOfObjects)
{
    auto& control = useToy();
    control.setObjects(model.data(), {model.wall("W1"), model.wall("W2")});

    control.setObjects(model.data(), control.getObjects());

    EXPECT_THAT(control.getObjects(), SizeIs(2));
}

TEST_F(PropertySetControlTest, SetsOfOneObjectDoNotSurviveIntoTheNext)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Company", {{"Code", label("A")}});
    control.setObject(model.data(), wall);
    ASSERT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));

    control.setObject(model.data(), model.wall("W2"));

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, ResetForgetsObjectsAndSets)
{
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));

    control.reset();

    EXPECT_THAT(control.getObjects(), IsEmpty());
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(PropertySetControlTest, ShowsAndHidesTheWindowOfItsFlavour)
{
    auto& control = useToy();
    control.show();
    control.hide();

    control.window = std::make_shared<ToyWindow>();
    control.show();
    control.show();
    control.hide();

    EXPECT_EQ(control.window->shown, 2);
    EXPECT_EQ(control.window->hidden, 1);
}

/// A formatter that keeps the models it is told of.
class DataFormatter : public LogFormatter
{
public:
    std::vector<std::shared_ptr<Data>> models;
    void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> /*object*/) override
    {
        models.push_back(std::move(data));
    }
};

TEST_F(PropertySetControlTest, TellsTheFormatterTheModelThatTheObjectsCameWith)
{
    auto const dataFormatter = std::make_shared<DataFormatter>();
    formatter = dataFormatter;
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_Toy", {{"Colour", label("red")}});
    Model other;

    control.setObject(other.data(), other.wall("W2"));
    control.setObjects(model.data(), {wall});
    control.notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged);

    EXPECT_THAT(dataFormatter->models, ElementsAre(other.data(), other.data(), model.data(), model.data()));
}

/// A formatter that empties the control it is told of, between the telling and the building of sets.
class LosingFormatter : public LogFormatter
{
public:
    PropertySetControl* control = nullptr;
    void setObject(std::shared_ptr<Data> /*data*/, std::shared_ptr<FcBase> /*object*/) override
    {
        if (control)
            control->reset();
    }
};

TEST_F(PropertySetControlTest, BuildingSetsWithoutObjectsIsReportedAndGivesNone)
{
    auto const losing = std::make_shared<LosingFormatter>();
    formatter = losing;
    auto& control = useToy();
    losing->control = &control;

    control.setObject(model.data(), model.wall("W1"));

    expectReport("Object list is empty.", std::string(function) + "initSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

// --- What sets are given ----------------------------------------------------------------------------

/// A flavour that has other objects edited than it shows.
class RowControl : public ToyControl
{
public:
    using ToyControl::ToyControl;
    std::vector<std::shared_ptr<FcBase>> row;

private:
    std::vector<std::shared_ptr<FcBase>> const& getObjectsBeingEdited() override { return row; }
};

TEST_F(PropertySetControlTest, SetsHaveTheObjectsShown)
{
    auto& control = useToy();
    std::shared_ptr<FcBase> const first = model.wall("W1");
    std::shared_ptr<FcBase> const second = model.wall("W2");

    control.setObjects(model.data(), {first, second});

    EXPECT_THAT(control.getDefinitions().front()->getObjects(), ElementsAre(first, second));
}

TEST_F(PropertySetControlTest, SetsFollowTheObjectsThatTheFlavourHasEdited)
{
    auto const schema = toySchemaWith(SetBuilder("Pset_Toy").applicableTo("IfcProduct").take());
    RowControl control(schema.get(), nullptr, nullptr, filter, formatter, contexts, qppOverride);
    std::shared_ptr<FcBase> const first = model.wall("W1");
    std::shared_ptr<FcBase> const second = model.wall("W2");
    control.setObjects(model.data(), {first, second});
    auto const& set = *control.getDefinitions().front();

    control.row = {first};
    EXPECT_THAT(set.getObjects(), ElementsAre(first));
    control.row = {second};
    EXPECT_THAT(set.getObjects(), ElementsAre(second));
}

/// Has no presentation of its own, and keeps what it is asked for.
class AskedOverride : public PropertyTypePropertySetAndPropertyNameQppOverrideInterface
{
public:
    std::vector<std::string> asked;
    std::unique_ptr<qev::unit::QuantityPresentationBase>
    createQuantityPresentation(std::string type, std::string set, std::string property) override
    {
        asked.push_back(type + " " + set + " " + property);
        return nullptr;
    }
};

TEST_F(PropertySetControlTest, SetsAreGivenTheOverrideOfPresentations)
{
    auto const asked = std::make_shared<AskedOverride>();
    qppOverride = asked;
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));
    asked->asked.clear();

    EXPECT_EQ(control.getDefinitions().front()->quantityPresentationOverride("Real", "Pset_Toy", "Size"),
              nullptr);

    EXPECT_THAT(asked->asked, ElementsAre("Real Pset_Toy Size"));
}

TEST_F(PropertySetControlTest, SetsAreGivenTheContextsOfTexts)
{
    auto& admin = qev::resource::localization::getAdminInstance();
    auto const language = admin.language();
    admin.setLanguage(qev::locale::Locale("de", ""));
    contexts = qev::localization::Dictionaries::getContexts("IFC");
    auto& control = use(toySchemaWith(SetBuilder("Pset_WallCommon").applicableTo("IfcWall").take()));

    control.setObject(model.data(), model.wall("W1"));

    EXPECT_EQ(control.getDefinitions().front()->getLocalizedName({}), "Wand allgemein");
    admin.setLanguage(language);
}

// --- Values and toggles -----------------------------------------------------------------------------

TEST_F(PropertySetControlTest, APairIsFoundFromEitherSide)
{
    formatter->related["HasSize"] = "Size";
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));

    EXPECT_EQ(control.getRelatedPropertyName("Pset_Toy", "HasSize"), "Size");
    EXPECT_EQ(control.getRelatedPropertyName("Pset_Toy", "Size"), "HasSize");
    EXPECT_EQ(control.getRelatedPropertyName("Pset_Toy", "Colour"), std::nullopt);
    EXPECT_EQ(control.getRelatedPropertyName("Pset_Other", "Size"), std::nullopt);
}

} // namespace
