#pragma once

#include "core/map_records.h"
#include "core/reference_records.h"
#include "core/unit_records.h"

#include <cstdint>
#include <memory>
#include <string>

class MapPicture;

/// The objects of the campaign, the catalogues and the rosters. Each is empty at its first use, also after it
/// was dropped.
struct CampaignCollections {
    CollectionRef<oUnits> colUnits;         // by ID
    CollectionRef<oUnits> colSelectedUnits; // the same objects, by the ID they had when selected
    CollectionRef<oLabels> colLabels;
    CollectionRef<oLines> colLines; // no keys
    CollectionRef<oShapes> colShapes;
    CollectionRef<oPolygons> colPolygons;
    CollectionRef<oFireMission> colFireMissions;
    CollectionRef<oTowns> colTowns;
    CollectionRef<const oForceElements> colForceElements; // by the number with a leading blank: " 12"
    CollectionRef<oUnitTypes> colUnitTypes;               // by side and type: "AlliedRifle Company"
    CollectionRef<oGameMasters> colGameMasters;           // the rosters by name
    CollectionRef<oGermanPlayers> colGermanPlayers;
    CollectionRef<oRussianPlayers> colRussianPlayers;
    CollectionRef<oCoordinates> colPathPoints; // no keys
    CollectionRef<oCoordinates> colCirclePoints;
};

/// The records that panels and dialogs act on, or nothing. References into the collections, not copies.
struct ActiveRecords {
    std::shared_ptr<oUnits> curUnit;
    std::shared_ptr<oShapes> curShape;
    std::shared_ptr<oUnitForceElements> curUFE;
    std::shared_ptr<const oWaypoint> curWaypoint;
    std::shared_ptr<oPolygons> curPolygon;
    std::shared_ptr<oFireMission> curFireMission;
    std::shared_ptr<oTowns> curTown;
    std::shared_ptr<oLabels> curLabel;
    std::shared_ptr<oLines> curLine;
};

/// What the maps show.
struct DisplayOptions {
    bool gDispUnits = true;
    bool gDispLabels = true;
    bool gDispLines = true;
    bool gDispShapes = true;
    bool gDispPolygons = true;
    bool gDispFireMissions = true;
    bool gDispUnitNames = false;
    bool gDispUnitHQNames = false;
    bool gDispOmUnits = true;
    bool gDispOmFirefans = true;
    bool gDispOmLines = true;
    bool gDispAoo = true;
    bool gDispAooAll = true;
    bool gDispAooSelected = false;
    bool gDispWaypoints = true;
    bool gDispWayptData = true;
    bool gDispWayptAll = true;
    bool gDispWayptSelected = false;
    bool gDispFirefans = false;
    bool gDispFirefansAll = true;
    bool gDispFirefansSelected = false;
    bool gDispUSZ = false;
    bool gDispUSZAll = false;
    bool gDispUSZSelected = false;
    bool gDispUSZFilled = true;
};

/// The choices of the selective save.
struct SaveOptions {
    bool gSaveUnits = true;
    bool gSaveShapes = true;
    bool gSaveLabels = true;
    bool gSaveLines = true;
    bool gSavePolygons = true;
    bool gSaveFmissions = true;
};

/// The campaign clock, all texts; the month is a word.
struct CampaignClock {
    std::string gDateYear = "1942";
    std::string gDateMonth = "November";
    std::string gDateDay = "25";
    std::string gDateHour = "07";
    std::string gDateMinute = "00";
};

/// The whole shared state of one campaign. There is one per process.
struct Campaign : CampaignCollections, ActiveRecords, DisplayOptions, SaveOptions, CampaignClock {
    std::string gAppPath; // the program's directory, no separator behind it
    std::int16_t gScreenW = 0;
    std::int16_t gScreenH = 0;
    std::shared_ptr<const MapPicture> gMapPicture; // the map on its way from splash to main window
    std::int16_t gMapEast0 = 0;
    std::int16_t gMapNorth0 = 0; // whole kilometres of the map's height
    std::string gDefaultFont = "Arial";
    bool gShowGrid = false;
    bool gUnitEdited = false;
    bool gCopyColorCreate = false;
    bool gCopyColorEdit = false;

    // Next free indices of screen objects: handed out once and never again.
    std::int16_t gNextUnitIndex = 1;
    std::int16_t gNextLabelIndex = 1;
    std::int16_t gNextShapeIndex = 1;

    // Answers of the coordinate dialog, and ticks of the find marker.
    std::int16_t gFindX = 0;
    std::int16_t gFindY = 0;
    bool gCoordCancelled = false;
    std::int16_t gBlinkCount = 0;

    // Tool flags that dialogs write.
    bool placing_label = false;
    bool placing_fire_mission = false;
    bool selecting_fire_mission = false;
    bool moving_fire_mission = false;
};
