// The twelve toggles of the view tool bar, in their order.

#include "viewlayer.h"

#include "mapscript.h"

QString ViewLayer::script(bool shown) const
{
    if (manager.size() > 0) {
        return mapscript::markerLayer(manager, list, shown);
    }
    return level != 0 ? mapscript::airwayLayer(level, shown) : QString();
}

const QVector<ViewLayer>& MainWindow::viewLayers()
{
    using M = MainWindow;
    using G = CNavGlobalVar;
    using T = QLatin1String;
    // Two first states are another layer's on purpose: the terminal NDB start as those en route, the docks' toggle as
    // the zones'. "contôle" is the label's own spelling.
    static const QVector<ViewLayer> layers{
        {&M::actApt, T("actApt"), QT_TR_NOOP("Aéroport"), QT_TR_NOOP("Affiche les aéroports"), T("Img08"), &M::sViewApt,
         &G::showAirport, &G::showAirport, T("ArptMgr"), T("listApt"), 0},
        {&M::actVor, T("actVor"), QT_TR_NOOP("VOR"), QT_TR_NOOP("Affiche les VOR"), T("Img05"), &M::sViewVor,
         &G::showVor, &G::showVor, T("VORMgr"), T("listVOR"), 0},
        {&M::actNdbRte, T("actNdbRte"), QT_TR_NOOP("NDB Rte"), QT_TR_NOOP("Affiche les NDB en route"), T("Img06"),
         &M::sViewNdbRte, &G::showNdbRte, &G::showNdbRte, T("NDBRteMgr"), T("listNDBRte"), 0},
        {&M::actNdbTerm, T("actNdbTerm"), QT_TR_NOOP("NDB Ter"), QT_TR_NOOP("Affiche les NDB terminaux"), T("Img06"),
         &M::sViewNdbTerm, &G::showNdbTerm, &G::showNdbRte, T("NDBTermMgr"), T("listNDBTerm"), 0},
        {&M::actWptRte, T("actWptRte"), QT_TR_NOOP("Waypoint en route"),
         QT_TR_NOOP("Affiche les points de report en route"), T("Img12"), &M::sViewWptRte, &G::showWaypointRte,
         &G::showWaypointRte, T("WPTRteMgr"), T("listWptRte"), 0},
        {&M::actWptTerm, T("actWptTerm"), QT_TR_NOOP("Waypoint terminaux"),
         QT_TR_NOOP("Affiche les points de report terminaux"), T("Img13"), &M::sViewWptTerm, &G::showWaypointTerm,
         &G::showWaypointTerm, T("WPTTermMgr"), T("listWptTerm"), 0},
        {&M::actWptVfr, T("actWptVfr"), QT_TR_NOOP("Waypoint VFR"), QT_TR_NOOP("Affiche les points de report VFR"),
         T("Img33"), &M::sViewWptVfr, &G::showWaypointVfr, &G::showWaypointVfr, T("WPTVfrMgr"), T("listWptVfr"), 0},
        {&M::actAtsLo, T("actAtsLo"), QT_TR_NOOP("ATS Low"), QT_TR_NOOP("Affiche les routes basse altitude"),
         T("Img36"), &M::sViewAtsLo, &G::showATSL, &G::showATSL, T(), T(), 'L'},
        {&M::actAtsHi, T("actAtsHi"), QT_TR_NOOP("ATS High"), QT_TR_NOOP("Affiche les routes haute altitude"),
         T("Img37"), &M::sViewAtsHi, &G::showATSH, &G::showATSH, T(), T(), 'H'},
        {&M::actAtsB, T("actAtsB"), QT_TR_NOOP("ATS High/Low"), QT_TR_NOOP("Affiche les routes mixtes"), T("Img38"),
         &M::sViewAtsB, &G::showATSB, &G::showATSB, T(), T(), 'B'},
        {&M::actBdry, T("actBdry"), QT_TR_NOOP("Zone de contôle"), QT_TR_NOOP("Affiche les zones de contrôle"),
         T("Img27"), &M::sViewBdry, &G::showBoundary, &G::showBoundary, T(), T(), 0},
        {&M::actDock, T("actDock"), QT_TR_NOOP("Plein écran"), QT_TR_NOOP("Mode plein écran"), T("Img09"),
         &M::sViewDock, &G::showDock, &G::showBoundary, T(), T(), 0},
    };
    return layers;
}
