#pragma once

#include <string_view>

namespace qev::test {

/// A building with two walls that share a property set, and a third thing with a set of its own.
inline constexpr std::string_view smallBuilding = R"(ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('small.ifc','2024-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('IFC4X3_ADD2'));
ENDSEC;
DATA;
#1=IFCPROJECT('0000000000000000000001',$,'Project',$,$,$,$,$,#2);
#2=IFCUNITASSIGNMENT((#3));
#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);
#10=IFCBUILDING('0000000000000000000010',$,'House',$,$,$,$,$,$,$,$,$);
#11=IFCBUILDINGSTOREY('0000000000000000000011',$,'Storey 10',$,$,$,$,$,$,$);
#12=IFCBUILDINGSTOREY('0000000000000000000012',$,'Storey 2',$,$,$,$,$,$,$);
#20=IFCRELAGGREGATES('0000000000000000000020',$,$,$,#1,(#10));
#21=IFCRELAGGREGATES('0000000000000000000021',$,$,$,#10,(#11,#12));
#30=IFCWALL('0000000000000000000030',$,'East wall',$,$,$,$,$,$);
#31=IFCWALL('0000000000000000000031',$,'West wall',$,$,$,$,$,$);
#32=IFCDOOR('0000000000000000000032',$,'Entrance',$,$,$,$,$,2.,1.,$,$,$);
#33=IFCSPACE('0000000000000000000033',$,'Hall',$,$,$,$,$,$,$,$);
#40=IFCRELCONTAINEDINSPATIALSTRUCTURE('0000000000000000000040',$,$,$,(#30,#31,#32),#12);
#41=IFCRELAGGREGATES('0000000000000000000041',$,$,$,#12,(#33));
#50=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$);
#51=IFCPROPERTYSET('0000000000000000000051',$,'Pset_WallCommon',$,(#50));
#52=IFCRELDEFINESBYPROPERTIES('0000000000000000000052',$,$,$,(#30,#31),#51);
#53=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('T30'),$);
#54=IFCPROPERTYSET('0000000000000000000054',$,'Pset_DoorCommon',$,(#53));
#55=IFCRELDEFINESBYPROPERTIES('0000000000000000000055',$,$,$,(#32),#54);
ENDSEC;
END-ISO-10303-21;
)";

inline constexpr char const* eastWall = "0000000000000000000030";
inline constexpr char const* westWall = "0000000000000000000031";
inline constexpr char const* entrance = "0000000000000000000032";

} // namespace qev::test
