#!/usr/bin/env python3
"""Writes the sample models of data/samples: one small office building in three versions of the standard.

    tools/samples/write-samples.py [--check]

The files are part of the repository; the build does not run this program. With --check nothing is written, and the
program fails when a file would change.
"""

import sys
from pathlib import Path

from schema_text import Schema
from step_writer import StepWriter, Text, Value

SAMPLES = Path(__file__).resolve().parents[2] / "data" / "samples"
TIME_STAMP = "2026-03-02T09:30:00"
CREATED = 1772443800
FOOT = 0.3048
INCH = 0.0254

LONG_TEXT = (
    "Cleaning and care of the facade. Wash with clear water and a soft brush in spring and in autumn, from the top "
    "down, never in full sun. Look at the joints every second year: a joint that has come loose, is brittle or lets "
    "a coin in must be cut out and filled anew in dry weather above five degrees. Paint splashes are taken off at "
    "once with a wooden scraper. High-pressure cleaners, acids and steel brushes are not allowed. ") * 6


class Office:
    """The building. Lengths, areas and volumes are given in metres here and written in the units of the file."""

    def __init__(self, schema, schemas, schema_name, encoding, length_unit):
        self.w = StepWriter(schema, schemas, schema_name, encoding)
        self.length_unit = length_unit
        self.old = schema.name == "IFC2X3"
        self.metre = {"millimetre": 0.001, "metre": 1.0, "foot": FOOT}[length_unit]
        self.solids = {}
        self.elements = {}
        self.types = {}
        self.sets = {}

    def write(self):
        self.people()
        self.units()
        self.contexts()
        self.spatial_structure()
        self.materials()
        self.types_of_elements()
        self.envelope()
        self.openings()
        self.structure()
        self.interior()
        self.ventilation()
        self.groups()
        self.relations_to_types()
        self.standard_sets()
        self.own_sets()
        self.odd_sets()
        self.quantities()
        self.external_references()
        self.boundaries()

    # ------------------------------------------------------------------------------------------------ helpers

    def add(self, class_name, **values):
        return self.w.add(class_name, **values)

    def length(self, metres):
        return round(metres / self.metre, 6)

    def area(self, square_metres):
        factor = FOOT * FOOT if self.length_unit == "foot" else 1.0
        return round(square_metres / factor, 6)

    def volume(self, cubic_metres):
        factor = FOOT ** 3 if self.length_unit == "foot" else 1.0
        return round(cubic_metres / factor, 6)

    def point(self, x, y, z=None):
        parts = (x, y) if z is None else (x, y, z)
        return self.add("IfcCartesianPoint", Coordinates=[self.length(part) for part in parts])

    def placement(self, relative_to, x, y, z, turned=False):
        """A local placement; `turned` lets the local x axis point along y."""
        position = self.add("IfcAxis2Placement3D", Location=self.point(x, y, z),
                            Axis=self.up if turned else None, RefDirection=self.along_y if turned else None)
        return self.add("IfcLocalPlacement", PlacementRelTo=relative_to, RelativePlacement=position)

    def solid(self, width, depth, height):
        """A box that stands on its placement, with a corner there. The same box is written once."""
        key = (width, depth, height)
        if key not in self.solids:
            location = self.add("IfcAxis2Placement2D", Location=self.point(width / 2, depth / 2))
            profile = self.add("IfcRectangleProfileDef", ProfileType="AREA", Position=location,
                               XDim=self.length(width), YDim=self.length(depth))
            self.solids[key] = self.add("IfcExtrudedAreaSolid", SweptArea=profile, Position=self.axes,
                                        ExtrudedDirection=self.up, Depth=self.length(height))
        return self.solids[key]

    def shape(self, width, depth, height):
        body = self.add("IfcShapeRepresentation", ContextOfItems=self.body, RepresentationIdentifier="Body",
                        RepresentationType="SweptSolid", Items=[self.solid(width, depth, height)])
        return self.add("IfcProductDefinitionShape", Representations=[body])

    def element(self, class_name, key, name, inside, at, size, turned=False, **values):
        """An element with a box as its body; it stands `at` a point of the storey or element `inside`."""
        place = self.placement(self.places[inside] if isinstance(inside, str) else inside, *at, turned=turned)
        shape = self.shape(*size) if size else None
        element = self.w.rooted(class_name, key, Name=name, ObjectPlacement=place, Representation=shape, **values)
        self.elements[key] = element
        self.places[key] = place
        return element

    def relate(self, class_name, key, **values):
        return self.w.rooted(class_name, class_name + " " + key, **values)

    def value(self, type_name, value):
        return Value("Ifc" + type_name, value)

    def single(self, name, type_name, value, unit=None, description=None):
        nominal = None if value is None else self.value(type_name, value)
        return self.add("IfcPropertySingleValue", Name=name, Description=description, Specification=description,
                        NominalValue=nominal, Unit=unit)

    def enumerated(self, name, values, enumeration, description=None):
        return self.add("IfcPropertyEnumeratedValue", Name=name, Description=description, Specification=description,
                        EnumerationValues=[self.value("Label", value) for value in values],
                        EnumerationReference=enumeration)

    def enumeration(self, name, *items):
        return self.add("IfcPropertyEnumeration", Name=name,
                        EnumerationValues=[self.value("Label", item) for item in items])

    def bounded(self, name, type_name, lower, upper, set_point=None, unit=None):
        form = lambda number: None if number is None else self.value(type_name, number)
        return self.add("IfcPropertyBoundedValue", Name=name, UpperBoundValue=form(upper),
                        LowerBoundValue=form(lower),
                        Unit=unit, SetPointValue=form(set_point))

    def list_of(self, name, type_name, values, unit=None):
        return self.add("IfcPropertyListValue", Name=name, ListValues=[self.value(type_name, v) for v in values],
                        Unit=unit)

    def reference(self, name, usage, target):
        return self.add("IfcPropertyReferenceValue", Name=name, UsageName=usage, PropertyReference=target)

    def property_set(self, key, name, properties, description=None):
        made = self.w.rooted("IfcPropertySet", "set " + key, Name=name, Description=description,
                             HasProperties=properties)
        self.sets[key] = made
        return made

    def attach(self, key, definition, *elements):
        self.relate("IfcRelDefinesByProperties", "properties " + key,
                    RelatedObjects=[self.elements[element] for element in elements],
                    RelatingPropertyDefinition=definition)

    def set_on(self, key, name, properties, *elements, description=None):
        self.attach(key, self.property_set(key, name, properties, description), *elements)

    # ----------------------------------------------------------------------------------------------- the file

    def people(self):
        w = self.w
        w.section("Who made the model", "The owner history that all objects with a GlobalId share.")
        role = self.add("IfcActorRole", Role="ARCHITECT")
        w.note("The office address, also used as a property value further down.")
        self.office_address = self.add(
            "IfcPostalAddress", Purpose="OFFICE", Description="Planning office",
            AddressLines=["Lindenstra\u00dfe 7", "Hinterhaus"], Town="K\u00f6ln", PostalCode="50674",
            Country="Germany")
        telecom = self.add("IfcTelecomAddress", Purpose="OFFICE", TelephoneNumbers=["+49 221 000000"],
                           ElectronicMailAddresses=["office@example.org"], WWWHomePageURL="https://example.org")
        self.person = self.add("IfcPerson", Id="jm", Identification="jm", FamilyName="M\u00fcller",
                               GivenName="J\u00f6rg",
                               MiddleNames=["A.", "B."], Roles=[role])
        self.organization = self.add("IfcOrganization", Id="plan", Identification="plan", Name="Plain Planning",
                                     Description="Invented for these samples",
                                     Addresses=[self.office_address, telecom])
        self.user = self.add("IfcPersonAndOrganization", ThePerson=self.person, TheOrganization=self.organization)
        application = self.add("IfcApplication", ApplicationDeveloper=self.organization, Version="1.0",
                               ApplicationFullName="Qev samples", ApplicationIdentifier="qev-samples")
        w.owner_history = self.add("IfcOwnerHistory", OwningUser=self.user, OwningApplication=application,
                                   State="READWRITE", ChangeAction="MODIFIED" if not self.old else "ADDED",
                                   LastModifiedDate=CREATED + 3600, LastModifyingUser=self.user,
                                   LastModifyingApplication=application, CreationDate=CREATED)

    def si(self, unit_type, name, prefix=None):
        return self.add("IfcSIUnit", UnitType=unit_type, Prefix=prefix, Name=name)

    def dimensions(self, length=0, mass=0, time=0, temperature=0):
        return self.add("IfcDimensionalExponents", LengthExponent=length, MassExponent=mass, TimeExponent=time,
                        ElectricCurrentExponent=0, ThermodynamicTemperatureExponent=temperature,
                        AmountOfSubstanceExponent=0, LuminousIntensityExponent=0)

    def converted(self, unit_type, name, exponents, type_name, factor, base):
        measure = self.add("IfcMeasureWithUnit", ValueComponent=self.value(type_name, factor), UnitComponent=base)
        return self.add("IfcConversionBasedUnit", Dimensions=exponents, UnitType=unit_type, Name=name,
                        ConversionFactor=measure)

    def derived(self, unit_type, *elements, name=None):
        parts = [self.add("IfcDerivedUnitElement", Unit=unit, Exponent=exponent) for unit, exponent in elements]
        return self.add("IfcDerivedUnit", Elements=parts, UnitType=unit_type,
                        UserDefinedType=name if unit_type == "USERDEFINED" else None)

    def units(self):
        w = self.w
        w.section("Units", "Every number without a unit of its own is meant in these.")
        self.length_dimensions = self.dimensions(length=1)
        self.metre_unit = self.si("LENGTHUNIT", "METRE")
        self.millimetre = self.si("LENGTHUNIT", "METRE", "MILLI")
        square_metre = self.si("AREAUNIT", "SQUARE_METRE")
        cubic_metre = self.si("VOLUMEUNIT", "CUBIC_METRE")
        w.note("The inch and the foot are units of single properties" +
               (", the foot also of the whole file." if self.old else "."))
        self.inch = self.converted("LENGTHUNIT", "INCH", self.length_dimensions, "LengthMeasure", 25.4,
                                   self.millimetre)
        self.foot = self.converted("LENGTHUNIT", "FOOT", self.length_dimensions,
                                   "RatioMeasure" if self.old else "LengthMeasure", FOOT, self.metre_unit)
        if self.length_unit == "foot":
            area = self.converted("AREAUNIT", "SQUARE FOOT", self.dimensions(length=2), "AreaMeasure", FOOT ** 2,
                                  square_metre)
            volume = self.converted("VOLUMEUNIT", "CUBIC FOOT", self.dimensions(length=3), "VolumeMeasure",
                                    FOOT ** 3, cubic_metre)
            basic = [self.foot, area, volume]
        else:
            basic = [self.metre_unit if self.metre == 1.0 else self.millimetre, square_metre, cubic_metre]
        radian = self.si("PLANEANGLEUNIT", "RADIAN")
        degree = self.converted("PLANEANGLEUNIT", "DEGREE", self.dimensions(), "PlaneAngleMeasure",
                                0.017453292519943295, radian)
        kilogram = self.si("MASSUNIT", "GRAM", "KILO")
        self.gram = self.si("MASSUNIT", "GRAM")
        self.second = self.si("TIMEUNIT", "SECOND")
        self.hour = self.converted("TIMEUNIT", "HOUR", self.dimensions(time=1), "TimeMeasure", 3600.0, self.second)
        kelvin = self.si("THERMODYNAMICTEMPERATUREUNIT", "KELVIN")
        watt = self.si("POWERUNIT", "WATT")
        self.kilowatt = self.si("POWERUNIT", "WATT", "KILO")
        w.note("Composed units: W/(m2 K), and for the flow " +
               ("l/s, made from the cubic decimetre." if self.length_unit == "metre" else "m3/s."))
        transmittance = self.derived("THERMALTRANSMITTANCEUNIT", (watt, 1), (square_metre, -1), (kelvin, -1))
        flow_volume = cubic_metre if self.length_unit != "metre" else \
            self.si("VOLUMEUNIT", "CUBIC_METRE", "DECI")
        flow = self.derived("VOLUMETRICFLOWRATEUNIT", (flow_volume, 1), (self.second, -1))
        self.flow_per_hour = self.derived("VOLUMETRICFLOWRATEUNIT", (cubic_metre, 1), (self.hour, -1))
        density = self.derived("MASSDENSITYUNIT", (kilogram, 1), (cubic_metre, -1))
        money = self.add("IfcMonetaryUnit", Currency="EUR")
        angle = degree
        temperature = kelvin if self.length_unit == "metre" else \
            self.si("THERMODYNAMICTEMPERATUREUNIT", "DEGREE_CELSIUS")
        time = self.hour if self.length_unit == "metre" else self.second
        power = watt if self.length_unit == "metre" else self.kilowatt
        self.in_file_temperature = lambda celsius: round(celsius + 273.15, 6) if temperature is kelvin else celsius
        self.in_file_power = lambda watts: watts if power is watt else watts / 1000.0
        self.in_file_flow = lambda cubic_metres: cubic_metres if flow_volume is cubic_metre else cubic_metres * 1000.0
        self.in_file_time = lambda seconds: seconds / 3600.0 if time is self.hour else seconds
        if w.has("IfcConversionBasedUnitWithOffset"):
            w.note("Degrees Fahrenheit: K = value * 5/9 + 255.372222.")
            measure = self.add("IfcMeasureWithUnit", UnitComponent=kelvin,
                               ValueComponent=self.value("ThermodynamicTemperatureMeasure", 0.5555555555555556))
            self.fahrenheit = self.add("IfcConversionBasedUnitWithOffset",
                                       Dimensions=self.dimensions(temperature=1),
                                       UnitType="THERMODYNAMICTEMPERATUREUNIT", Name="FAHRENHEIT",
                                       ConversionFactor=measure, ConversionOffset=255.3722222222222)
        w.note("A unit without a scale: persons.")
        self.persons = self.add("IfcContextDependentUnit", Dimensions=self.dimensions(), UnitType="USERDEFINED",
                                Name="PERSON")
        self.unit_assignment = self.add("IfcUnitAssignment", Units=basic + [
            angle, kilogram, time, temperature, power, transmittance, flow, density, money])

    def contexts(self):
        w = self.w
        w.section("Project, contexts and georeference")
        self.origin = self.add("IfcCartesianPoint", Coordinates=[0.0, 0.0, 0.0])
        self.up = self.add("IfcDirection", DirectionRatios=[0.0, 0.0, 1.0])
        self.along_x = self.add("IfcDirection", DirectionRatios=[1.0, 0.0, 0.0])
        self.along_y = self.add("IfcDirection", DirectionRatios=[0.0, 1.0, 0.0])
        north = self.add("IfcDirection", DirectionRatios=[0.0871557427, 0.9961946981])
        self.axes = self.add("IfcAxis2Placement3D", Location=self.origin, Axis=self.up, RefDirection=self.along_x)
        model = self.add("IfcGeometricRepresentationContext", ContextIdentifier="3D", ContextType="Model",
                         CoordinateSpaceDimension=3, Precision=1e-05, WorldCoordinateSystem=self.axes,
                         TrueNorth=north)
        self.body = self.add("IfcGeometricRepresentationSubContext", ContextIdentifier="Body", ContextType="Model",
                             ParentContext=model, TargetView="MODEL_VIEW")
        self.model_context = model
        self.project = w.rooted("IfcProject", "project", Name="Small office", LongName="Small office at the park",
                                Description="Two storeys with everything that a property view should show",
                                ObjectType="Sample", Phase="Design", RepresentationContexts=[model],
                                UnitsInContext=self.unit_assignment)
        self.elements["project"] = self.project
        if w.has("IfcMapConversion"):
            w.note("Where the model lies on the map. The map is in metres, whatever the model is in.")
            system = self.add("IfcProjectedCRS", Name="EPSG:25832", Description="UTM zone 32",
                              GeodeticDatum="ETRS89",
                              VerticalDatum="DHHN2016", MapProjection="UTM", MapZone="32N", MapUnit=self.metre_unit)
            self.add("IfcMapConversion", SourceCRS=model, TargetCRS=system, Eastings=356600.25,
                     Northings=5645300.5, OrthogonalHeight=53.2, XAxisAbscissa=0.9961946981,
                     XAxisOrdinate=-0.0871557427,
                     Scale=self.metre)

    def spatial_structure(self):
        w = self.w
        w.section("Site, building, storeys and spaces")
        self.places = {}
        address = self.add("IfcPostalAddress", Purpose="SITE", InternalLocation="Gate 2",
                           AddressLines=["Am Park 12"], PostalBox="1200", Town="K\u00f6ln", Region="NRW",
                           PostalCode="50670", Country="Germany")
        self.places["site"] = self.placement(None, 0, 0, 0)
        site = w.rooted("IfcSite", "site", Name="Plot 12", LongName="Plot at the park", CompositionType="ELEMENT",
                        ObjectPlacement=self.places["site"], RefLatitude=[50, 57, 1, 500000],
                        RefLongitude=[6, 57, 32, 250000], RefElevation=self.length(53.2), LandTitleNumber="12/7",
                        SiteAddress=address)
        self.places["building"] = self.placement(self.places["site"], 0, 0, 0)
        building = w.rooted("IfcBuilding", "building", Name="Office", LongName="Small office", ObjectType="Office",
                            CompositionType="ELEMENT", ObjectPlacement=self.places["building"],
                            ElevationOfRefHeight=self.length(53.5), ElevationOfTerrain=self.length(53.2),
                            BuildingAddress=self.office_address)
        self.places["ground"] = self.placement(self.places["building"], 0, 0, 0)
        ground = w.rooted("IfcBuildingStorey", "ground", Name="Ground floor", LongName="Level 0",
                          CompositionType="ELEMENT", ObjectPlacement=self.places["ground"], Elevation=0.0)
        self.places["upper"] = self.placement(self.places["building"], 0, 0, 3.2)
        upper = w.rooted("IfcBuildingStorey", "upper", Name="Upper floor", LongName="Level 1",
                         CompositionType="ELEMENT", ObjectPlacement=self.places["upper"],
                         Elevation=self.length(3.2))
        self.elements.update(site=site, building=building, ground=ground, upper=upper)
        spaces = [
            ("space reception", "0.01", "Reception", "ground", (0.365, 0.365), (5.5, 7.27, 2.9)),
            ("space workshop", "0.02", "Workshop", "ground", (6.0, 0.365), (5.635, 7.27, 2.9)),
            ("space meeting", "1.01", "Besprechungsraum gro\u00df", "upper", (0.365, 0.365), (5.5, 7.27, 2.7)),
            ("space office", "1.02", "B\u00fcro", "upper", (6.0, 0.365), (5.635, 7.27, 2.7)),
        ]
        for key, number, long_name, storey, (x, y), size in spaces:
            self.element("IfcSpace", key, number, storey, (x, y, 0), size, LongName=long_name,
                         CompositionType="ELEMENT", InteriorOrExteriorSpace="INTERNAL", PredefinedType="SPACE",
                         ElevationWithFlooring=self.length(0.0 if storey == "ground" else 3.2))
        w.note("What lies in what.")
        self.relate("IfcRelAggregates", "project", RelatingObject=self.project, RelatedObjects=[site])
        self.relate("IfcRelAggregates", "site", RelatingObject=site, RelatedObjects=[building])
        self.relate("IfcRelAggregates", "building", RelatingObject=building, RelatedObjects=[ground, upper])
        for storey in ("ground", "upper"):
            self.relate("IfcRelAggregates", storey, RelatingObject=self.elements[storey],
                        RelatedObjects=[self.elements[key] for key, _, _, at, _, _ in spaces if at == storey])

    def materials(self):
        w = self.w
        w.section("Materials", "Layers for walls and slabs, constituents or a list for windows, a profile for steel.")
        named = lambda name, category: self.add("IfcMaterial", Name=name, Category=category)
        self.brick = named("Clay brick", "brick")
        self.insulation = named("Mineral wool", "insulation")
        self.plaster = named("Gypsum plaster", "plaster")
        self.concrete = named("Concrete C25/30", "concrete")
        self.steel = named("Steel S235", "steel")
        self.glass = named("Glass", "glass")
        self.wood = named("Oak", "wood")
        layer = lambda material, thickness, name, ventilated=None: self.add(
            "IfcMaterialLayer", Material=material, LayerThickness=self.length(thickness), IsVentilated=ventilated,
            Name=name, Category=name.lower(), Priority=None)
        layers = [layer(self.plaster, 0.015, "Finish", False), layer(self.brick, 0.24, "Core", False),
                  layer(self.insulation, 0.11, "Insulation", "UNKNOWN")]
        self.wall_layers = self.add("IfcMaterialLayerSet", MaterialLayers=layers, LayerSetName="External wall 365")
        self.wall_usage = self.add("IfcMaterialLayerSetUsage", ForLayerSet=self.wall_layers,
                                   LayerSetDirection="AXIS2", DirectionSense="POSITIVE",
                                   OffsetFromReferenceLine=0.0)
        self.slab_layers = self.add("IfcMaterialLayerSet", MaterialLayers=[layer(self.concrete, 0.25, "Core")],
                                    LayerSetName="Slab 250")
        if w.has("IfcMaterialConstituentSet"):
            constituent = lambda name, material, fraction: self.add(
                "IfcMaterialConstituent", Name=name, Material=material, Fraction=fraction, Category=name)
            self.window_material = self.add(
                "IfcMaterialConstituentSet", Name="Window", MaterialConstituents=[
                    constituent("Framing", self.wood, 0.3), constituent("Glazing", self.glass, 0.7)])
        else:
            self.window_material = self.add("IfcMaterialList", Materials=[self.wood, self.glass])
        profile = self.add("IfcIShapeProfileDef", ProfileType="AREA", ProfileName="HEA200",
                           Position=self.add("IfcAxis2Placement2D", Location=self.point(0, 0)),
                           OverallWidth=self.length(0.2), OverallDepth=self.length(0.19),
                           WebThickness=self.length(0.0065), FlangeThickness=self.length(0.01),
                           FilletRadius=self.length(0.018))
        if w.has("IfcMaterialProfileSet"):
            material_profile = self.add("IfcMaterialProfile", Name="HEA200", Material=self.steel, Profile=profile)
            profile_set = self.add("IfcMaterialProfileSet", Name="HEA200", MaterialProfiles=[material_profile])
            self.beam_material = self.add("IfcMaterialProfileSetUsage", ForProfileSet=profile_set, CardinalPoint=5)
            w.note("Properties of a material and of a profile; they hang on these, not on an element.")
            self.add("IfcMaterialProperties", Name="Pset_MaterialCommon", Material=self.steel, Properties=[
                self.single("MassDensity", "MassDensityMeasure", 7850.0)])
            self.add("IfcProfileProperties", Name="Pset_ProfileMechanical", ProfileDefinition=profile, Properties=[
                self.single("CrossSectionArea", "AreaMeasure", 0.00538)])
        else:
            self.beam_material = self.steel
            w.note("Properties of a material and of a profile; they hang on these, not on an element.")
            self.add("IfcGeneralMaterialProperties", Material=self.steel, MassDensity=7850.0)
            self.add("IfcGeneralProfileProperties", ProfileName="HEA200", ProfileDefinition=profile,
                     CrossSectionArea=self.area(0.00538))

    def type_of(self, class_name, key, name, sets, **values):
        if not self.w.has(class_name):
            return
        self.types[key] = self.w.rooted(class_name, "type " + key, Name=name, HasPropertySets=sets or None,
                                        **values)

    def types_of_elements(self):
        w = self.w
        w.section("Types", "What is the same for many elements, with sets of their own (HasPropertySets).",
                  "A set of an element wins over the set of the same name of its type, property by property.")
        wall_sets = [
            self.property_set("wall type common", "Pset_WallCommon", [
                self.single("Reference", "Identifier", "W365"),
                self.single("FireRating", "Label", "F30"),
                self.single("IsExternal", "Boolean", True),
                self.single("ThermalTransmittance", "ThermalTransmittanceMeasure", 0.24),
                self.single("Combustible", "Boolean", False)]),
            self.property_set("wall type maker", "Sample_Manufacturer", [
                self.single("Manufacturer", "Label", "Brickyard & Sons"),
                self.single("Article number", "Identifier", "BR-365/2"),
                self.single("Unit price", "MonetaryMeasure", 148.5)],
                description="From the catalogue of the maker")]
        self.type_of("IfcWallType", "wall external", "External wall 365", wall_sets, Tag="WT1",
                     PredefinedType="STANDARD")
        self.type_of("IfcWallType", "wall internal", "Internal wall 135", [
            self.property_set("wall internal common", "Pset_WallCommon", [
                self.single("Reference", "Identifier", "W135"),
                self.single("IsExternal", "Boolean", False)])], Tag="WT2", PredefinedType="STANDARD")
        door_sets = [
            self.property_set("door type common", "Pset_DoorCommon", [
                self.single("Reference", "Identifier", "D101"),
                self.single("AcousticRating", "Label", "32 dB"),
                self.single("SmokeStop", "Boolean", True)]),
            w.rooted("IfcDoorLiningProperties", "door lining", Name="Lining", LiningDepth=self.length(0.1),
                     LiningThickness=self.length(0.04)),
            w.rooted("IfcDoorPanelProperties", "door panel", Name="Panel", PanelDepth=self.length(0.05),
                     PanelOperation="SWINGING", PanelWidth=1.0, PanelPosition="LEFT")]
        window_sets = [self.property_set("window type common", "Pset_WindowCommon", [
            self.single("Reference", "Identifier", "F120"),
            self.single("ThermalTransmittance", "ThermalTransmittanceMeasure", 0.9),
            self.single("GlazingAreaFraction", "PositiveRatioMeasure", 0.78)])]
        if self.old:
            self.type_of("IfcDoorStyle", "door", "Door 1.01 x 2.13", door_sets, OperationType="SINGLE_SWING_LEFT",
                         ConstructionType="WOOD", ParameterTakesPrecedence=True, Sizeable=False)
            self.type_of("IfcWindowStyle", "window", "Window 1.2 x 1.5", window_sets, OperationType="SINGLE_PANEL",
                         ConstructionType="WOOD", ParameterTakesPrecedence=False, Sizeable=True)
        else:
            self.type_of("IfcDoorType", "door", "Door 1.01 x 2.13", door_sets, PredefinedType="DOOR",
                         OperationType="SINGLE_SWING_LEFT", ParameterTakesPrecedence=True)
            self.type_of("IfcWindowType", "window", "Window 1.2 x 1.5", window_sets, PredefinedType="WINDOW",
                         PartitioningType="SINGLE_PANEL", ParameterTakesPrecedence=False)
        self.type_of("IfcSlabType", "slab", "Slab 250", [self.property_set("slab type common", "Pset_SlabCommon", [
            self.single("LoadBearing", "Boolean", True),
            self.single("AcousticRating", "Label", "53 dB")])], PredefinedType="FLOOR")
        self.type_of("IfcColumnType", "column", "Column 300", [self.property_set(
            "column type common", "Pset_ColumnCommon", [self.single("LoadBearing", "Boolean", True)])],
            PredefinedType="COLUMN")
        self.type_of("IfcBeamType", "beam", "HEA200", None, PredefinedType="BEAM")
        self.type_of("IfcCoveringType", "covering", "Oak floor", None, PredefinedType="FLOORING")
        self.type_of("IfcStairType", "stair", "Straight stair", None, PredefinedType="STRAIGHT_RUN_STAIR")
        self.type_of("IfcSpaceType", "space", "Office space", [self.property_set("space type", "Sample_SpaceType", [
            self.single("Room class", "Label", "B")])], PredefinedType="SPACE" if not self.old else "NOTDEFINED")
        self.type_of("IfcFurnitureType", "desk", "Desk 160 x 80",
                     [self.property_set("desk type", "Sample_Furniture", [
            self.single("Height adjustable", "Logical", "UNKNOWN"),
            self.single("Colour", "Label", None)]),
            w.rooted("IfcElementQuantity", "desk type quantities", Name="Sample_TypeQuantities", Quantities=[
                self.quantity("Length", "Width", self.length(1.6)), self.quantity("Weight", "Weight", 38.5)])],
            AssemblyPlace="FACTORY", PredefinedType="DESK")
        self.type_of("IfcDuctSegmentType", "duct", "Round duct 200",
                     [self.property_set("duct type", "Sample_Duct", [
            self.single("Diameter", "PositiveLengthMeasure", self.length(0.2)),
            self.single("Design flow", "VolumetricFlowRateMeasure", self.in_file_flow(0.12))])],
            PredefinedType="RIGIDSEGMENT")
        self.type_of("IfcAirTerminalType", "terminal", "Ceiling diffuser", None, PredefinedType="DIFFUSER")

    def wall_class(self):
        return "IfcWallStandardCase" if self.w.has("IfcWallStandardCase") else "IfcWall"

    def envelope(self):
        w = self.w
        w.section("Walls and slabs")
        walls = [("south", (0, 0), 12.0, False), ("east", (12.0, 0), 8.0, True), ("north", (0, 7.635), 12.0, False),
                 ("west", (0.365, 0), 8.0, True)]
        for storey, short, height in (("ground", "G", 2.95), ("upper", "U", 2.75)):
            for side, (x, y), long, turned in walls:
                self.element(self.wall_class(), "wall %s %s" % (side, storey), "Wall %s %s" % (short, side), storey,
                             (x, y, 0), (long, 0.365, height), turned, Tag=short + side[0].upper(),
                             PredefinedType="STANDARD")
            self.element("IfcWall", "wall inner " + storey, "Wall %s inner" % short, storey, (6.0, 0.365, 0),
                         (7.27, 0.135, height), True, ObjectType="Partition", PredefinedType="PARTITIONING")
        self.element("IfcSlab", "slab ground", "Slab ground", "ground", (0, 0, -0.25), (12.0, 8.0, 0.25), Tag="S0",
                     PredefinedType="BASESLAB")
        self.element("IfcSlab", "slab upper", "Slab upper", "upper", (0, 0, -0.25), (12.0, 8.0, 0.25), Tag="S1",
                     PredefinedType="FLOOR")
        self.element("IfcSlab", "slab roof", "Slab roof", "upper", (0, 0, 2.75), (12.0, 8.0, 0.25), Tag="S2",
                     PredefinedType="ROOF")
        w.note("The layers of the external walls, used from the reference line outwards.")
        self.relate("IfcRelAssociatesMaterial", "walls", RelatingMaterial=self.wall_usage, RelatedObjects=[
            self.elements[key] for key in self.elements if key.startswith("wall") and "inner" not in key])
        self.relate("IfcRelAssociatesMaterial", "wall type", RelatingMaterial=self.wall_layers,
                    RelatedObjects=[self.types["wall external"]])
        self.relate("IfcRelAssociatesMaterial", "inner walls", RelatingMaterial=self.brick, RelatedObjects=[
            self.elements["wall inner ground"], self.elements["wall inner upper"]])
        self.relate("IfcRelAssociatesMaterial", "slabs", RelatingMaterial=self.slab_layers, RelatedObjects=[
            self.elements[key] for key in self.elements if key.startswith("slab")])

    def opening(self, key, wall, x, z, width, height, filling_class, name, **values):
        opening = self.element("IfcOpeningElement", "opening " + key, "Opening of " + name, wall, (x, 0, z),
                               (width, 0.365, height), PredefinedType="OPENING")
        filling = self.element(filling_class, key, name, "opening " + key, (0, 0.1, 0), (width, 0.1, height),
                               OverallHeight=self.length(height), OverallWidth=self.length(width), **values)
        self.relate("IfcRelVoidsElement", key, RelatingBuildingElement=self.elements[wall],
                    RelatedOpeningElement=opening)
        self.relate("IfcRelFillsElement", key, RelatingOpeningElement=opening, RelatedBuildingElement=filling)

    def openings(self):
        self.w.section("Doors and windows, each in an opening of its wall")
        door = dict(PredefinedType="DOOR", OperationType="SINGLE_SWING_LEFT")
        window = dict(PredefinedType="WINDOW", PartitioningType="SINGLE_PANEL")
        self.opening("door entrance", "wall south ground", 2.0, 0.0, 1.26, 2.26, "IfcDoor", "Entrance",
                     Tag="D1", **door)
        self.opening("door inner", "wall inner ground", 3.0, 0.0, 1.01, 2.13, "IfcDoor", "Inner door", Tag="D2",
                     **door)
        for index, (wall, x) in enumerate([("wall south ground", 8.0), ("wall south upper", 2.0),
                                           ("wall south upper", 8.0)]):
            self.opening("window %d" % (index + 1), wall, x, 0.9, 1.2, 1.5, "IfcWindow", "Window %d" % (index + 1),
                         Tag="F%d" % (index + 1), **window)
        self.relate("IfcRelAssociatesMaterial", "windows", RelatingMaterial=self.window_material, RelatedObjects=[
            self.elements["window %d" % index] for index in (1, 2, 3)])

    def structure(self):
        w = self.w
        w.section("Columns, a beam and a stair")
        for index, x in enumerate((4.0, 8.0)):
            self.element("IfcColumn", "column %d" % (index + 1), "Column %d" % (index + 1), "ground", (x, 3.85, 0),
                         (0.3, 0.3, 2.95), Tag="C%d" % (index + 1), PredefinedType="COLUMN")
        self.element("IfcBeam", "beam 1", "Beam 1", "ground", (4.0, 3.9, 2.76), (4.0, 0.2, 0.19), Tag="B1",
                     PredefinedType="BEAM")
        self.element("IfcStair", "stair", "Stair", "ground", (9.0, 5.0, 0), None, Tag="T1",
                     ShapeType="STRAIGHT_RUN_STAIR", PredefinedType="STRAIGHT_RUN_STAIR")
        flight = self.element("IfcStairFlight", "flight", "Flight", "stair", (0, 0, 0), (1.1, 4.2, 3.2),
                              NumberOfRiser=18, NumberOfRisers=18, NumberOfTreads=17,
                              RiserHeight=self.length(0.177778), TreadLength=self.length(0.27),
                              PredefinedType="STRAIGHT")
        self.relate("IfcRelAggregates", "stair", RelatingObject=self.elements["stair"], RelatedObjects=[flight])
        self.relate("IfcRelAssociatesMaterial", "beam", RelatingMaterial=self.beam_material,
                    RelatedObjects=[self.elements["beam 1"]])
        self.relate("IfcRelAssociatesMaterial", "columns", RelatingMaterial=self.concrete, RelatedObjects=[
            self.elements["column 1"], self.elements["column 2"]])

    def interior(self):
        self.w.section("Floor covering and furniture")
        self.element("IfcCovering", "covering", "Oak floor", "upper", (6.0, 0.365, 0), (5.635, 7.27, 0.02),
                     PredefinedType="FLOORING")
        self.relate("IfcRelCoversBldgElements", "floor", RelatingBuildingElement=self.elements["slab upper"],
                    RelatedCoverings=[self.elements["covering"]])
        furniture = "IfcFurnishingElement" if self.old else "IfcFurniture"
        for index in range(3):
            self.element(furniture, "desk %d" % (index + 1), "Desk %d" % (index + 1), "upper",
                         (6.5, 1.0 + 2 * index, 0), (1.6, 0.8, 0.74), Tag="M%d" % (index + 1),
                         PredefinedType="DESK")

    def ventilation(self):
        w = self.w
        w.section("Ventilation: ducts and air terminals, joined at their ports")
        segment = "IfcFlowSegment" if self.old else "IfcDuctSegment"
        terminal = "IfcFlowTerminal" if self.old else "IfcAirTerminal"
        self.element(segment, "duct 1", "Duct 1", "ground", (1.0, 2.0, 2.6), (3.0, 0.2, 0.2),
                     PredefinedType="RIGIDSEGMENT")
        self.element(segment, "duct 2", "Duct 2", "ground", (4.0, 2.0, 2.6), (3.0, 0.2, 0.2),
                     PredefinedType="RIGIDSEGMENT")
        self.element(terminal, "terminal 1", "Air terminal 1", "ground", (7.0, 1.9, 2.5), (0.4, 0.4, 0.1),
                     PredefinedType="DIFFUSER")
        ends = [("duct 1", "in", "SINK", 0.0), ("duct 1", "out", "SOURCE", 3.0), ("duct 2", "in", "SINK", 0.0),
                ("duct 2", "out", "SOURCE", 3.0), ("terminal 1", "in", "SINK", 0.0)]
        for element, end, direction, x in ends:
            self.element("IfcDistributionPort", "port %s %s" % (element, end), "Port " + end, element,
                         (x, 0.1, 0.1),
                         None, FlowDirection=direction, PredefinedType="DUCT", SystemType="VENTILATION")
        for element in ("duct 1", "duct 2", "terminal 1"):
            ports = [self.elements["port %s %s" % (e, end)] for e, end, _, _ in ends if e == element]
            if self.old:
                for index, port in enumerate(ports):
                    self.relate("IfcRelConnectsPortToElement", "%s %d" % (element, index), RelatingPort=port,
                                RelatedElement=self.elements[element])
            else:
                self.relate("IfcRelNests", element, RelatingObject=self.elements[element], RelatedObjects=ports)
        self.relate("IfcRelConnectsPorts", "ducts", RelatingPort=self.elements["port duct 1 out"],
                    RelatedPort=self.elements["port duct 2 in"])
        self.relate("IfcRelConnectsPorts", "terminal", RelatingPort=self.elements["port duct 2 out"],
                    RelatedPort=self.elements["port terminal 1 in"])
        w.section("Which storey holds which element")
        upper = {"covering", "slab upper", "slab roof"} | {"desk %d" % index for index in (1, 2, 3)}
        upper |= {key for key in self.elements if key.endswith(" upper")} | {"window 2", "window 3"}
        skipped = ("space", "opening", "port", "flight", "project", "site", "building")
        contained = [key for key in self.elements if not key.startswith(skipped) and key not in ("ground", "upper")]
        for storey, keys in (("ground", [key for key in contained if key not in upper]),
                             ("upper", [key for key in contained if key in upper])):
            self.relate("IfcRelContainedInSpatialStructure", storey, RelatingStructure=self.elements[storey],
                        RelatedElements=[self.elements[key] for key in keys])
        self.relate("IfcRelReferencedInSpatialStructure", "stair", RelatingStructure=self.elements["upper"],
                    RelatedElements=[self.elements["stair"]])

    def groups(self):
        w = self.w
        w.section("Systems, zones and groups")
        system = "IfcDistributionSystem" if w.has("IfcDistributionSystem") else "IfcSystem"
        supply = w.rooted(system, "system supply", Name="Supply air", LongName="Supply air of the ground floor",
                          ObjectType="Ventilation", PredefinedType="VENTILATION")
        self.elements["system supply"] = supply
        self.relate("IfcRelAssignsToGroup", "supply", RelatingGroup=supply, RelatedObjects=[
            self.elements[key] for key in ("duct 1", "duct 2", "terminal 1")])
        self.relate("IfcRelServicesBuildings", "supply", RelatingSystem=supply,
                    RelatedBuildings=[self.elements["building"]])
        for key, name, spaces in (("zone public", "Public", ("space reception", "space meeting")),
                                  ("zone work", "Work", ("space workshop", "space office"))):
            zone = w.rooted("IfcZone", key, Name=name, LongName=name + " zone")
            self.elements[key] = zone
            self.relate("IfcRelAssignsToGroup", key, RelatingGroup=zone,
                        RelatedObjects=[self.elements[space] for space in spaces])
        group = w.rooted("IfcGroup", "group", Name="Phase 1", ObjectType="Building phase")
        self.elements["group"] = group
        self.relate("IfcRelAssignsToGroup", "group", RelatingGroup=group, RelatedObjects=[
            self.elements["wall south ground"], self.elements["slab ground"], self.elements["column 1"]])
        actor = w.rooted("IfcOccupant", "occupant", Name="Tenant", TheActor=self.user, PredefinedType="TENANT")
        self.elements["occupant"] = actor
        self.relate("IfcRelAssignsToActor", "occupant", RelatingActor=actor,
                    RelatedObjects=[self.elements["space office"]])

    def relations_to_types(self):
        self.w.section("Which element is of which type")
        members = {
            "wall external": [k for k in self.elements if k.startswith("wall") and "inner" not in k],
            "wall internal": ["wall inner ground", "wall inner upper"], "door": ["door entrance", "door inner"],
            "window": ["window 1", "window 2", "window 3"], "slab": ["slab ground", "slab upper"],
            "column": ["column 1", "column 2"], "beam": ["beam 1"], "covering": ["covering"], "stair": ["stair"],
            "space": ["space office", "space workshop"], "desk": ["desk 1", "desk 2", "desk 3"],
            "duct": ["duct 1", "duct 2"], "terminal": ["terminal 1"]}
        for key, elements in members.items():
            if key in self.types:
                self.relate("IfcRelDefinesByType", "type " + key, RelatingType=self.types[key],
                            RelatedObjects=[self.elements[element] for element in elements])

    def standard_sets(self):
        w = self.w
        w.section("Property sets of the standard", "One set for many objects, and sets for one object each.")
        walls = [key for key in self.elements if key.startswith("wall") and "inner" not in key]
        w.note("Shared by all external walls but the southern one of the ground floor, which has its own.")
        self.set_on("walls common", "Pset_WallCommon", [
            self.single("LoadBearing", "Boolean", True), self.single("ExtendToStructure", "Boolean", False),
            self.single("AcousticRating", "Label", "48 dB")], *[key for key in walls if key != "wall south ground"])
        status = None
        if not self.old:
            status = self.enumerated("Status", ["NEW"], self.enumeration(
                "PEnum_ElementStatus", "DEMOLISH", "EXISTING", "NEW", "TEMPORARY", "OTHER", "NOTKNOWN", "UNSET"))
        self.set_on("wall south common", "Pset_WallCommon", [
            self.single("Reference", "Identifier", "W365-south"), self.single("FireRating", "Label", "F90"),
            self.single("LoadBearing", "Boolean", True),
            self.single("ThermalTransmittance", "ThermalTransmittanceMeasure",
                        0.21)] + ([status] if status else []),
            "wall south ground")
        self.set_on("door entrance common", "Pset_DoorCommon", [
            self.single("FireRating", "Label", "T30"), self.single("IsExternal", "Boolean", True),
            self.single("HandicapAccessible", "Boolean", True),
            self.single("SecurityRating", "Label", "RC2"), self.single("Infiltration", "VolumetricFlowRateMeasure",
                                                                      self.in_file_flow(0.002))], "door entrance")
        self.set_on("door inner common", "Pset_DoorCommon", [
            self.single("FireRating", "Label", "T0"), self.single("IsExternal", "Boolean", False)], "door inner")
        self.set_on("windows common", "Pset_WindowCommon", [
            self.single("IsExternal", "Boolean", True), self.single("AcousticRating", "Label", "35 dB")],
            "window 1", "window 2", "window 3")
        self.set_on("slabs common", "Pset_SlabCommon", [
            self.single("IsExternal", "Boolean", True), self.single("PitchAngle", "PlaneAngleMeasure", 2.0)],
            "slab roof")
        self.set_on("beam common", "Pset_BeamCommon", [
            self.single("Span", "PositiveLengthMeasure", self.length(4.0)),
            self.single("Slope", "PlaneAngleMeasure", 0.0), self.single("LoadBearing", "Boolean", True)], "beam 1")
        self.set_on("stair common", "Pset_StairCommon", [
            self.single("NumberOfRiser", "CountMeasure", 18), self.single("NumberOfTreads", "CountMeasure", 17),
            self.single("RiserHeight", "PositiveLengthMeasure", self.length(0.177778)),
            self.single("HandicapAccessible", "Boolean", False)], "stair")
        spaces = [key for key in self.elements if key.startswith("space")]
        for key in spaces:
            self.set_on(key + " common", "Pset_SpaceCommon", [
                self.single("Reference", "Identifier", key.split()[1].upper()[:3]),
                self.single("IsExternal", "Boolean", False),
                self.single("PubliclyAccessible", "Boolean", key in ("space reception", "space meeting"))], key)
        self.set_on("building common", "Pset_BuildingCommon", [
            self.single("NumberOfStoreys", "Integer", 2), self.single("YearOfConstruction", "Label", "2026"),
            self.single("IsLandmarked", "Logical", "UNKNOWN")], "building")
        self.set_on("zone common", "Pset_ZoneCommon", [
            self.single("Reference", "Identifier", "Z1"), self.single("IsExternal", "Boolean", False)],
            "zone public", "zone work")
        if not self.old:
            w.note("Sets on a system, and on the project itself.")
            self.set_on("system common", "Pset_DistributionSystemCommon", [
                self.single("Reference", "Identifier", "SUP-1")], "system supply")
            project_set = self.property_set("project", "Sample_Project", [
                self.single("Contract number", "Identifier", "2026-017"),
                self.single("Budget", "MonetaryMeasure", 1250000.0)])
            self.attach("project", project_set, "project")

    def own_sets(self):
        w = self.w
        power, flow, warm = self.in_file_power, self.in_file_flow, self.in_file_temperature
        w.section("Sets of a company: single values of every kind", "All on the first wall of the ground floor.")
        wall = "wall south ground"
        singles = [
            self.single("Label", "Label", "Facing brick"), self.single("Text", "Text", "Laid in stretcher bond."),
            self.single("Identifier", "Identifier", "A-1.2/3"), self.single("Boolean true", "Boolean", True),
            self.single("Boolean false", "Boolean", False), self.single("Logical true", "Logical", True),
            self.single("Logical false", "Logical", False), self.single("Logical unknown", "Logical", "UNKNOWN"),
            self.single("Integer", "Integer", -42), self.single("Real", "Real", 1.5e-07),
            self.single("Real zero", "Real", 0.0), self.single("Count", "CountMeasure", 12),
            self.single("Length", "LengthMeasure", self.length(-0.125)),
            self.single("Positive length", "PositiveLengthMeasure", self.length(2.5)),
            self.single("Area", "AreaMeasure", self.area(35.4)),
            self.single("Volume", "VolumeMeasure", self.volume(12.9)),
            self.single("Ratio", "RatioMeasure", 0.35), self.single("Positive ratio", "PositiveRatioMeasure", 1.2),
            self.single("Normalised ratio", "NormalisedRatioMeasure", 0.5),
            self.single("Plane angle", "PlaneAngleMeasure", 22.5),
            self.single("Temperature", "ThermodynamicTemperatureMeasure", warm(21.5)),
            self.single("Power", "PowerMeasure", power(2500.0)),
            self.single("Flow", "VolumetricFlowRateMeasure", flow(0.05)),
            self.single("Thermal transmittance", "ThermalTransmittanceMeasure", 0.24),
            self.single("Mass", "MassMeasure", 480.0), self.single("Density", "MassDensityMeasure", 1800.0),
            self.single("Duration in units of time", "TimeMeasure", self.in_file_time(5400.0)),
            self.single("Money", "MonetaryMeasure", 149.9),
            self.single("Time stamp", "TimeStamp", CREATED),
            self.single("No value", "Label", None, description="A property may be there without a value"),
            self.single("Empty text", "Label", "", description="An empty text is not the same as no value")]
        if w.has("IfcDate"):
            singles += [self.single("Date", "Date", "2026-03-02"),
                        self.single("Date and time", "DateTime", "2026-03-02T09:30:00"),
                        self.single("Time of day", "Time", "09:30:00"),
                        self.single("Duration", "Duration", "P2DT3H")]
        self.set_on("singles", "Sample_SingleValues", singles, wall,
                    description="One property of each kind of value")
        w.section("Sets of a company: properties with a unit of their own")
        units = [
            self.single("Nominal width", "PositiveLengthMeasure", 14.5, self.inch, "In inches"),
            self.single("Nominal height", "LengthMeasure", 9.5, self.foot, "In feet"),
            self.single("Joint", "PositiveLengthMeasure", 12.0, self.millimetre, "In millimetres"),
            self.single("Sample weight", "MassMeasure", 250.0, self.gram, "In grams"),
            self.single("Drying time", "TimeMeasure", 36.0, self.hour, "In hours"),
            self.single("Air change", "VolumetricFlowRateMeasure", 180.0, self.flow_per_hour, "In m3/h"),
            self.single("Heater", "PowerMeasure", 1.2, self.kilowatt, "In kilowatts"),
            self.single("Occupants", "CountMeasure", 4, self.persons, "A unit without a scale")]
        if w.has("IfcConversionBasedUnitWithOffset"):
            units.append(self.single("Limit", "ThermodynamicTemperatureMeasure", 68.0, self.fahrenheit,
                                     "In degrees Fahrenheit"))
        self.set_on("units", "Sample_OwnUnits", units, wall)
        w.section("Sets of a company: enumerated, bounded, list, table, reference and complex")
        colours = self.enumeration("Sample_Colours", "RED", "YELLOW", "BROWN", "GREY")
        self.set_on("enumerated", "Sample_Enumerated", [
            self.enumerated("Colour", ["RED"], colours), self.enumerated("Colours", ["RED", "BROWN"], colours),
            self.enumerated("Without a list", ["ONE"], None, "The enumeration itself is missing")],
            wall, "wall east ground")
        self.set_on("bounded", "Sample_Bounded", [
            self.bounded("Range", "LengthMeasure", self.length(0.1), self.length(0.4), self.length(0.365)),
            self.bounded("At most", "ThermodynamicTemperatureMeasure", None, warm(60.0)),
            self.bounded("At least", "PowerMeasure", power(100.0), None),
            self.bounded("In inches", "PositiveLengthMeasure", 10.0, 16.0, 14.5, self.inch),
            self.bounded("Nothing", "Real", None, None)], wall)
        self.set_on("lists", "Sample_Lists", [
            self.list_of("Texts", "Label", ["first", "second", "it's the third"]),
            self.list_of("Lengths", "LengthMeasure", [self.length(part) for part in (0.24, 0.015, 0.11)]),
            self.list_of("Inches", "LengthMeasure", [1.0, 2.5, 4.0], self.inch),
            self.list_of("Numbers", "Integer", [3, 2, 1])], wall)
        table = self.add("IfcPropertyTableValue", Name="Sound reduction", DefiningValues=[
            self.value("Real", number) for number in (125.0, 250.0, 500.0, 1000.0)], DefinedValues=[
            self.value("Real", number) for number in (38.0, 44.0, 51.0, 56.0)], Expression="R = f(Hz)",
            CurveInterpolation="LINEAR")
        lengths = self.add("IfcPropertyTableValue", Name="Deflection", DefiningValues=[
            self.value("PowerMeasure", power(1000.0)), self.value("PowerMeasure", power(2000.0))], DefinedValues=[
            self.value("LengthMeasure", 0.5), self.value("LengthMeasure", 1.25)], DefinedUnit=self.inch)
        self.set_on("tables", "Sample_Tables", [table, lengths], wall)
        self.references(wall)
        self.complexes(wall)

    def date(self, day, month, year):
        return self.add("IfcCalendarDate", DayComponent=day, MonthComponent=month, YearComponent=year)

    def references(self, wall):
        manual = self.add("IfcDocumentReference", Location="manuals/brick.pdf", ItemReference="M-1",
                          Identification="M-1", Name="Manual of the brickwork")
        if self.old:
            start = self.add("IfcDateAndTime", DateComponent=self.date(2, 3, 2026), TimeComponent=self.add(
                "IfcLocalTime", HourComponent=8, MinuteComponent=0, SecondComponent=0.0))
            end = self.add("IfcDateAndTime", DateComponent=self.date(2, 3, 2026), TimeComponent=self.add(
                "IfcLocalTime", HourComponent=11, MinuteComponent=0, SecondComponent=0.0))
        else:
            start, end = "2026-03-02T08:00:00", "2026-03-02T11:00:00"
        readings = [self.add("IfcTimeSeriesValue", ListValues=[
            self.value("ThermodynamicTemperatureMeasure", self.in_file_temperature(celsius))])
            for celsius in (18.5, 19.25, 20.0)]
        series = self.add("IfcRegularTimeSeries", Name="Surface temperature", StartTime=start, EndTime=end,
                          TimeSeriesDataType="CONTINUOUS", DataOrigin="MEASURED",
                          TimeStep=self.in_file_time(3600.0), Values=readings)
        if not self.old:
            self.add("IfcExternalReferenceRelationship", Name="Source of the readings", RelatingReference=manual,
                     RelatedResourceObjects=[series])
        properties = [
            self.reference("Manual", "Document", manual), self.reference("Contact", "Person", self.person),
            self.reference("Organization", None, self.organization),
            self.reference("Address", None, self.office_address),
            self.reference("Main material", "Material", self.brick), self.reference("Measured", "Series", series)]
        if self.old:
            properties.append(self.reference("Inspected on", "Date", self.date(14, 2, 2026)))
        self.set_on("references", "Sample_References", properties, wall)

    def complexes(self, wall):
        inner = self.add("IfcComplexProperty", Name="Anchor", UsageName="Fixing", HasProperties=[
            self.single("Diameter", "PositiveLengthMeasure", self.length(0.012)),
            self.single("Material", "Label", "Steel")])
        outer = self.add("IfcComplexProperty", Name="Facade fixing", UsageName="Fixing", HasProperties=[
            self.single("Spacing", "PositiveLengthMeasure", self.length(0.6)),
            self.bounded("Load", "Real", 0.0, 2.5), inner])
        self.set_on("complex", "Sample_Complex", [outer, self.single("Checked", "Boolean", True)], wall)

    def odd_sets(self):
        w = self.w
        w.section("Names and texts that a reader must survive")
        wall = "wall east ground"
        texts = [
            self.single("Umlauts", "Label", "\u00c4\u00d6\u00dc \u00e4\u00f6\u00fc\u00df"),
            self.single("Stra\u00dfe", "Label", "A name with a sharp s"),
            self.single("\u4e2d\u6587\u540d\u79f0", "Label", "\u5899\u4f53 (wall)"),
            self.single("Quotes", "Label", "It's 5'4\" wide, 'quoted'"),
            self.single("Backslash", "Label", "C:\\plans\\wall.ifc"),
            self.single(" blank before and behind ", "Label", "  two blanks on each side  "),
            self.single("Looks like a record", "Label", "#12=IFCWALL($);/* no comment */"),
            self.single("Dots.in.the.name", "Label", "a.b.c"),
            self.single("Euro and dash", "Label", "12 \u20ac \u2013 15 \u20ac"),
            self.single("Beyond the plane", "Label", Text("\U00020bb7\u91ce", "X4")),
            self.single("Code page", "Label", Text("\u041c\u043e\u0441\u043a\u0432\u0430", "PE"),
                        description="Cyrillic"),
            self.single("Instructions", "Text", LONG_TEXT.strip())]
        if self.old:
            texts += [self.single("With \\X\\", "Label", Text("Gr\u00f6\u00dfe", "X")),
                      self.single("With \\S\\", "Label", Text("Gr\u00f6\u00dfe", "S")),
                      self.single("With \\X2\\", "Label", Text("Gr\u00f6\u00dfe", "X2"))]
        self.set_on("texts", "Sample texts, \u00dcbersicht", texts, wall)
        w.note("A set without a name, which the standard forbids and programs write; a set whose name is a blank; "
               "two sets of one name on one object.")
        self.set_on("unnamed", None, [self.single("In a set without a name", "Label", "found")], wall)
        self.set_on("blank", " ", [self.single("In a set named by a blank", "Label", "found")], wall)
        self.set_on("twice first", "Sample_Twice", [self.single("Value", "Integer", 1)], wall)
        self.set_on("twice second", "Sample_Twice", [self.single("Value", "Integer", 2),
                                                    self.single("Only here", "Integer", 3)], wall)
        w.note("The same property record in two sets, and one set on objects of different classes.")
        shared = self.single("Building phase", "Label", "Phase 1")
        self.set_on("phase", "Sample_Phase", [shared], "slab ground", "column 1", "door entrance", "desk 1",
                    "space office")
        self.set_on("phase copy", "Sample_PhaseCopy", [shared], "slab ground")
        if w.has("IfcPropertySetDefinitionSet"):
            w.note("One relation that attaches two sets at once.")
            pair = [self.property_set("pair " + name, "Sample_" + name, [self.single("Name", "Label", name)])
                    for name in ("First", "Second")]
            self.attach("pair", self.value("PropertySetDefinitionSet", pair), "column 2")
        w.note("A value that differs from desk to desk.")
        for index, owner in enumerate(("Anna", "Bj\u00f6rn", "Anna")):
            self.set_on("desk %d" % (index + 1), "Sample_Furniture", [
                self.single("Owner", "Label", owner),
                self.single("Inventory number", "Identifier", "INV-%04d" % (index + 1)),
                self.single("Height", "PositiveLengthMeasure", self.length(0.74 if index < 2 else 0.76))],
                "desk %d" % (index + 1))

    def quantity(self, kind, name, value, unit=None, formula=None):
        attribute = {"Length": "LengthValue", "Area": "AreaValue", "Volume": "VolumeValue", "Count": "CountValue",
                     "Weight": "WeightValue", "Time": "TimeValue"}[kind]
        return self.add("IfcQuantity" + kind, Name=name, Unit=unit, Formula=formula, **{attribute: value})

    def quantity_set(self, key, name, quantities, *elements, method="Sample rules"):
        made = self.w.rooted("IfcElementQuantity", "quantities " + key, Name=name, MethodOfMeasurement=method,
                             Quantities=quantities)
        self.attach("quantities " + key, made, *elements)

    def quantities(self):
        w = self.w
        w.section("Quantities", "All six kinds, one with a unit of its own, and a quantity made of quantities.")
        base = "BaseQuantities" if self.old else "Qto_WallBaseQuantities"
        self.quantity_set("wall south", base, [
            self.quantity("Length", "Length", self.length(12.0)),
            self.quantity("Length", "Width", self.length(0.365)),
            self.quantity("Length", "Height", self.length(2.95)),
            self.quantity("Area", "GrossSideArea", self.area(35.4), formula="Length * Height"),
            self.quantity("Area", "NetSideArea", self.area(30.7524)),
            self.quantity("Volume", "GrossVolume", self.volume(12.921)),
            self.quantity("Weight", "GrossWeight", 23257.8)], "wall south ground")
        layers = [self.quantity("Length", "Width", self.length(0.24)),
                  self.quantity("Volume", "Volume", self.volume(8.496))]
        composed = self.add("IfcPhysicalComplexQuantity", Name="Core", HasQuantities=layers, Discrimination="layer",
                            Quality="calculated", Usage="cost")
        self.quantity_set("all kinds", "Sample_Quantities", [
            self.quantity("Length", "Joint length", 118.0, self.inch),
            self.quantity("Area", "Painted", self.area(30.7524)),
            self.quantity("Volume", "Mortar", self.volume(0.75)), self.quantity("Count", "Bricks", 5600),
            self.quantity("Weight", "Mortar weight", 1350.0),
            self.quantity("Time", "Working time", 28.5, self.hour), composed], "wall south ground")
        for key in ("space reception", "space workshop", "space meeting", "space office"):
            width = 5.5 if key in ("space reception", "space meeting") else 5.635
            height = 2.9 if key in ("space reception", "space workshop") else 2.7
            self.quantity_set(key, "BaseQuantities" if self.old else "Qto_SpaceBaseQuantities", [
                self.quantity("Length", "Height", self.length(height)),
                self.quantity("Area", "NetFloorArea", self.area(round(width * 7.27, 6))),
                self.quantity("Volume", "NetVolume", self.volume(round(width * 7.27 * height, 6)))], key)
        self.quantity_set("windows", "BaseQuantities" if self.old else "Qto_WindowBaseQuantities", [
            self.quantity("Length", "Width", self.length(1.2)), self.quantity("Length", "Height", self.length(1.5)),
            self.quantity("Area", "Area", self.area(1.8))], "window 1", "window 2", "window 3")

    def external_references(self):
        w = self.w
        w.section("Classifications and documents")
        if self.old:
            classification = self.add("IfcClassification", Source="Sample institute", Edition="2",
                                      EditionDate=self.date(1, 1, 2025), Name="Sample classes")
        else:
            classification = self.add("IfcClassification", Source="Sample institute", Edition="2",
                                      EditionDate="2025-01-01", Name="Sample classes",
                                      Description="Parts of buildings", ReferenceTokens=["."])
        chain = classification
        steps = [("330", "External walls"), ("331", "Loadbearing external walls"), ("331.1", "Brickwork")]
        for code, name in steps[-1:] if self.old else steps:
            chain = self.add("IfcClassificationReference", Location="https://example.org/classes/" + code,
                             ItemReference=code, Identification=code, Name=name, ReferencedSource=chain)
        self.relate("IfcRelAssociatesClassification", "walls", Name="Cost group", RelatingClassification=chain,
                    RelatedObjects=[self.elements["wall south ground"], self.elements["wall east ground"]])
        other = self.add("IfcClassificationReference", ItemReference="DO", Identification="DO", Name="Doors",
                         ReferencedSource=classification)
        self.relate("IfcRelAssociatesClassification", "door type", RelatingClassification=other,
                    RelatedObjects=[self.types["door"], self.elements["wall south ground"]])
        if self.old:
            reference = self.add("IfcDocumentReference", Location="plans/ground-floor.pdf", ItemReference="P-01",
                                 Name="Plan of the ground floor")
            created = self.add("IfcDateAndTime", DateComponent=self.date(20, 1, 2026), TimeComponent=self.add(
                "IfcLocalTime", HourComponent=12, MinuteComponent=30, SecondComponent=0.0))
            document = self.add("IfcDocumentInformation", DocumentId="P-01", Name="Ground floor", Revision="B",
                                DocumentReferences=[reference], DocumentOwner=self.user, CreationTime=created,
                                ElectronicFormat=self.add("IfcDocumentElectronicFormat", FileExtension="pdf",
                                                          MimeContentType="application", MimeSubtype="pdf"),
                                ValidFrom=self.date(1, 2, 2026), Confidentiality="PUBLIC", Status="FINAL")
        else:
            document = self.add("IfcDocumentInformation", Identification="P-01", Name="Ground floor",
                                Description="Plan of the ground floor", Location="plans/ground-floor.pdf",
                                Purpose="Construction", Revision="B", DocumentOwner=self.user,
                                Editors=[self.person, self.organization], CreationTime="2026-01-20T12:30:00",
                                ElectronicFormat="application/pdf", ValidFrom="2026-02-01",
                                Confidentiality="PUBLIC",
                                Status="FINAL")
            reference = self.add("IfcDocumentReference", Identification="P-01/3", Name="Page 3",
                                 ReferencedDocument=document)
        self.relate("IfcRelAssociatesDocument", "ground", RelatingDocument=document,
                    RelatedObjects=[self.elements["ground"]])
        self.relate("IfcRelAssociatesDocument", "wall", RelatingDocument=reference,
                    RelatedObjects=[self.elements["wall south ground"], self.elements["door entrance"]])

    def boundaries(self):
        self.w.section("Space boundaries", "Which elements bound the reception and the office.")
        bounds = [("space reception", "wall south ground", "EXTERNAL"),
                  ("space reception", "wall west ground", "EXTERNAL"),
                  ("space reception", "wall inner ground", "INTERNAL"),
                  ("space reception", "door entrance", "EXTERNAL"),
                  ("space office", "wall east upper", "EXTERNAL"), ("space office", "window 3", "EXTERNAL")]
        for space, element, side in bounds:
            self.relate("IfcRelSpaceBoundary", space + " " + element, Name="1stLevel",
                        RelatingSpace=self.elements[space], RelatedBuildingElement=self.elements[element],
                        PhysicalOrVirtualBoundary="PHYSICAL", InternalOrExternalBoundary=side)


def main():
    check = sys.argv[1:] == ["--check"]
    schemas = {name: Schema(name) for name in ("IFC2X3", "IFC4", "IFC4X3_ADD2")}
    files = [("office-IFC4X3.ifc", "IFC4X3_ADD2", "X2", "millimetre"), ("office-IFC4.ifc", "IFC4", "X2", "metre"),
             ("office-IFC2X3.ifc", "IFC2X3", "S", "foot")]
    changed = False
    for file_name, schema_name, encoding, length_unit in files:
        office = Office(schemas[schema_name], schemas.values(), schema_name, encoding, length_unit)
        office.write()
        text = office.w.text(file_name, "ViewDefinition [none]", TIME_STAMP, "J\u00f6rg M\u00fcller",
                             "Plain Planning")
        path = SAMPLES / file_name
        same = path.exists() and path.read_text(encoding="ascii") == text
        changed = changed or not same
        if not check:
            path.write_text(text, encoding="ascii", newline="\n")
        print("%s: %d records%s" % (file_name, office.w.count, "" if same else ", changed"))
    return 1 if check and changed else 0


if __name__ == "__main__":
    sys.exit(main())
