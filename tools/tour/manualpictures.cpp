#include "manualpictures.h"

namespace {

const QRect all;
const QRect middleOfMap(150, 20, 960, 510);
const QRect leftOfProcedures(0, 0, 480, 360);
const QRect leftOfLoading(0, 0, 520, 200);
const QRect leftOfAircraft(0, 0, 430, 290);
const QRect buttonsOfToolBar(0, 0, 41, 420);
const QRect rightOfStatus(480, 0, 840, 70);

} // namespace

const QVector<ManualPicture>& manualPictures()
{
    static const QVector<ManualPicture> pictures{
        {"window", "plan-searched", "", "", all},
        {"box-work-folder", "box-work-folder", "", "", all},
        {"loaded", "search-exact", "dockWDebug", "", leftOfLoading},
        {"map", "chart-zoom-08-by-day", "map", "", all},
        {"pop-up", "pop-up", "map", ".leaflet-popup", all},
        {"map-night", "chart-zoom-08-by-night", "map", "", middleOfMap},
        {"tool-bar", "search-exact", "mainToolBar", "", buttonsOfToolBar},
        {"search", "search-exact", "dockWSearch", "", all},
        {"airport-menu", "airport-menu", "map", "#menu", all},
        {"map-menu", "map-menu", "map", "#menu", all},
        {"measure", "measure", "map", "", all},
        {"box-airways", "box-airways", "", "", all},
        {"aircraft", "aircraft-chosen", "dockWAircraft", "", leftOfAircraft},
        {"plan", "plan-searched", "dockWFlightPlan", "", all},
        {"box-saved", "box-saved", "", "", all},
        {"box-new-plan", "box-new-plan", "", "", all},
        {"box-load", "box-load", "", "", all},
        {"start", "start-turned", "map", "", middleOfMap},
        {"box-start-question", "box-start-question", "", "", all},
        {"star", "star-shown", "map", "", middleOfMap},
        {"box-sid-name", "box-sid-name", "", "", all},
        {"sid", "sid-stored", "dockWSid", "", leftOfProcedures},
        {"box-waypoint", "box-waypoint", "", "", all},
        {"box-position", "box-position", "", "", all},
        {"box-navaid", "box-navaid", "", "", all},
        {"box-delete", "box-delete-question", "", "", all},
        {"box-import", "box-import", "", "", all},
        {"box-imported", "box-imported", "", "", all},
        {"trace", "plan-left", "map", "", middleOfMap},
        {"status", "map-menu", "statusBar", "", rightOfStatus},
        {"box-too-short", "box-too-short", "", "", all},
    };
    return pictures;
}
