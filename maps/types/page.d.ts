/**
 * What the scripts of the page share, for the type check alone: nothing here is shipped. The types of the map are those
 * that its maker declares, so that a word that the map service does not know is found before a user finds it.
 */

type Place = google.maps.LatLng;

/** The words of the page's language; the pages themselves hold them. */
declare const pageWords: Record<string, string>;

/** What a marker stands for; decides the commands of its menu. */
type MarkerFamily = 'airport' | 'navaid' | 'waypoint' | 'point';

/** A marker of the feed; of the family `point`, another object with a name. */
interface ChartMarker {
  family: MarkerFamily;
  /** The name of its design. */
  symbol: string;
  position: Place;
  title: string;
  html: string;
  /** That of the layer which shows it. */
  badge: object | null;
  getTitle(): string;
  getPosition(): Place;
  /** Whether the title holds the key of a row. */
  hasKey(): boolean;
  tail(): string;
  stem(): string;
  keyDigit(): number;
  isSameRow(other: ChartMarker): boolean;
  /** The lines of the HTML text, once somebody has asked for them. */
  lines?: string[];
  /** The path of a symbol of its own: an airport with its runways. */
  path?: string;
  /** The symbol with that path in which it was last drawn in full, and what it depends on. */
  own?: { key: string, symbol: google.maps.Symbol };
  /** The two ends of each runway that the program has told. */
  runways?: Map<string, RunwayEnd[]>;
}

/** How far the end of a runway lies from its airport, in degrees of latitude. */
interface RunwayEnd {
  east: number;
  south: number;
}

/** From one end of a runway to the other, in the same measure. */
interface RunwayWay extends RunwayEnd {
  length: number;
}

/** Shows and hides the markers of a list. */
interface MarkerManager {
  addMarkers(list: ChartMarker[]): void;
  clearMarkers(): void;
  addMarker(marker: ChartMarker): void;
  removeMarker(marker: ChartMarker): void;
  /** Those that are shown, the list itself. */
  markers(): ChartMarker[];
  draws(marker: ChartMarker): boolean;
  drawsAny(): boolean;
  dress(): void;
}

/** How a symbol is drawn, the nearest first; there is nothing of it where it is 'none'. */
type SymbolForm = 'symbol' | 'sign' | 'dot';

/** From which zoom on a kind of marker has a form or a text; `many` is how many of them leave the map open. */
interface Stage {
  dot: number;
  sign: number;
  symbol: number;
  ident: number;
  name: number;
  many: number;
}

/** The looks of all markers at a zoom. The key is the same as long as everything looks the same. */
interface Looks {
  key: string;
  /** Whether anything of a kind is drawn. */
  draws: (symbol: string) => boolean;
  /** Whether names stand beside the symbols of a kind. */
  hasNames: (symbol: string) => boolean;
  /** `isTold`: the marker's label stands there already. */
  of: (marker: ChartMarker, isTold: boolean) => google.maps.Data.StyleOptions;
}

/** Pieces of symbol paths. */
interface Shapes {
  /** x, y, radius */
  circle(...numbers: number[]): string;
  /** each corner as x, y */
  polygon(...corners: number[][]): string;
  /** each line as x, y of its two ends */
  lines(...ends: number[][]): string;
  rounded(value: number): number;
}

interface ChartLayer {
  list: ChartMarker[];
  /** The manager is made when it is asked for. */
  manager: () => MarkerManager;
}

/** A function of the feed; the number is a type or a usage. */
type MarkerFeed = (position: Place, title: string, number: number, html: string) => void;

/** A command of a menu and the slots of the program that it needs. */
interface Command<Subject> {
  /** A key of the page's words. */
  word: string;
  slots: string[];
  /** Why it cannot act now; empty when it can. */
  problem?: (subject: Subject) => string;
  run: (subject: Subject) => void;
}

/** What an object or a panel of the menu is called: a head and smaller lines below it. */
interface Title {
  head: string;
  lines: string[];
}

/** An entry of the menu: a command or a submenu, and perhaps why it cannot act now. */
interface MenuEntry {
  text?: string;
  run?: () => void;
  /** Shown below the text of the greyed entry. */
  reason?: string;
  submenu?: MenuEntry[];
  /** That of the submenu. */
  title?: Title;
  /** A line instead of an entry. */
  separator?: boolean;
}

/** How a track is drawn. */
interface TrackStyle {
  /** The palette's colours of the line and its names, and of what lies inside its points. */
  colours: [Colour, Colour];
  zIndex: number;
  /** The symbol of its points and the key of what they are called; without it the track is nothing but its lines. */
  point?: { path: string, weight: number, word: string };
  /** Whether course and distance stand beside its legs. */
  legs?: boolean;
  /** The lines of the track, each over the one before, from its two colours. */
  lines: (colour: string, fill: string) => google.maps.PolylineOptions[];
}

interface TrackPoint {
  position: Place;
  name: string;
}

/** A drawn point of the plan: its marker, or its own object, and the number of its place. */
interface PlanPoint {
  marker: ChartMarker;
  key: number;
}

/** Two points of a track with what is written beside the way between them. */
interface Leg {
  from: Place;
  to: Place;
  /** NM. */
  distance: number;
  text: string;
  /** Of the text, pixels. */
  width: number;
}

/** A place in pixels. */
interface Spot {
  x: number;
  y: number;
}

/** A place on a leg, in pixels of the map's panes and of the view; angle is the way's direction there, radians. */
interface LegSpot extends Spot {
  view: Spot;
  /** Whether the leg is drawn there. */
  isDrawn: boolean;
  angle: number;
  /** Of the leg, pixels. */
  length: number;
  /** Of the leg, up to here. */
  part: number;
  /** What the text covers. */
  discs: Spot[];
  /** Of the text from the line, pixels, below it where positive. */
  offset?: number;
}

/** What a runway is drawn with. */
type Shape = google.maps.Polyline | google.maps.Polygon;

/** A piece of a runway's picture, from which zoom on it is drawn, and its colours. */
interface RunwayPart {
  shape: Shape;
  from: number;
  look: (palette: Palette) => Object;
}

/** A place on a runway by metres from its end and to the right of its middle. */
type RunwayFrame = (along: number, right: number) => Place;

/** A way on the ground, metres. */
interface Way {
  east: number;
  north: number;
}

/** Keeps discs apart. */
interface Room {
  take(discs: Spot[]): void;
  isFree(disc: Spot): boolean;
}

interface LegTexts extends google.maps.OverlayView {
  setPoints(points: TrackPoint[]): void;
  refresh(): void;
}

interface Track {
  points: TrackPoint[];
  clear(): void;
  add(position: Place, name: string): void;
  draw(): void;
  dressPoints(): void;
  refreshTexts(): void;
  tells(marker: ChartMarker): boolean;
}

/** What the palettes colour; the table stands in palette.js. */
type Colour = 'sea' | 'land' | 'coast' | 'border' | 'seaText' | 'placeText' | 'countryText'
    | 'placeRim' | 'airport' | 'airportFill' | 'navaid' | 'navaidFill' | 'ndb' | 'waypoint' | 'waypointFill'
    | 'waypointTerminal' | 'waypointVfr' | 'waypointVfrFill' | 'label' | 'labelRim' | 'route'
    | 'routeFill' | 'procedure' | 'procedureFill' | 'airwayLow' | 'airwayHigh' | 'airwayBoth' | 'airwayOther'
    | 'runway' | 'runwayCentre' | 'start' | 'startEdge' | 'aircraft' | 'aircraftEdge' | 'trail' | 'measure'
    | 'measureText' | 'measureFill';

type Palette = Record<Colour, string> & { name: 'day' | 'night' };

/** What a file of the page offers to the others; the comments stand where it is made. */
interface Page {
  offers(slot: string): boolean;
  call(slot: string, ...values: (string | number)[]): void;
  oncePerFrame(run: () => void): () => void;

  isPlace(position: Place | null | undefined): boolean;
  heading(value: number): number;

  degreesEast(from: Place, to: Place): number;
  areClose(a: Place, b: Place, degrees: number): boolean;
  distanceTo(from: Place, to: Place): number;
  courseTo(from: Place, to: Place): number;
  midPoint(from: Place, to: Place): Place;
  pointAlong(from: Place, to: Place, part: number): Place;
  partAlong(from: Place, to: Place, point: Place): number;
  kilometresOf(miles: number): number;

  palette: Palette;
  onPalette(listener: (palette: Palette) => void): void;
  setPalette(name: string): void;

  symbol(path: string, stroke: string, weight: number, fill: string,
    more?: Partial<google.maps.Symbol>): google.maps.Symbol;
  shapes: Shapes;
  symbolOf(marker: ChartMarker, form: SymbolForm, scale: number): google.maps.Symbol;
  labelledBelow(symbol: google.maps.Symbol): google.maps.Symbol;
  symbolHeight(symbol: string): number;
  symbolColour(symbol: string): string;
  vorSymbol(type: number): string;

  families: Record<MarkerFamily, MarkerFamily>;
  newMarker(family: MarkerFamily, symbol: string, position: Place, title: string, html: string): ChartMarker;
  hasRow(marker: ChartMarker): boolean;
  newPoint(position: Place, name: string, head: string): ChartMarker;
  pointSources: Array<() => ChartMarker[]>;
  namedPoints(): ChartMarker[];
  collect(list: ChartMarker[], family: MarkerFamily, symbol: string, position: Place, title: string,
    html: string): ChartMarker | null;
  collectAirport(position: Place, title: string, html: string): ChartMarker | null;
  collectVor(position: Place, title: string, symbol: string, html: string): ChartMarker | null;
  /** A VOR, TACAN or DME of a type as the database has it. */
  collectVorOfType(position: Place, title: string, type: number, html: string): void;
  /** A VOR, TACAN or DME whose type is that of its key; a VOR without one. */
  collectVorByKey(position: Place, title: string, html: string): ChartMarker | null;
  collectNdb(position: Place, title: string, use: number, html: string): ChartMarker | null;
  collectWaypoint(position: Place, title: string, use: number, html: string): ChartMarker | null;

  identOf(marker: ChartMarker): string;
  nameOf(marker: ChartMarker): string;
  linesOf(marker: ChartMarker): string[];
  longText(marker: ChartMarker): string;
  letterFamily: string;
  labelOf(text: string, colour: string, letters: number, more?: Partial<google.maps.MarkerLabel>): google.maps.MarkerLabel;
  looksAt(zoom: number, countOf: (symbol: string) => number): Looks;
  fullLook(marker: ChartMarker, more: { text: string, colour: string, zIndex: number }): google.maps.Data.StyleOptions;

  isUnderAirport(marker: ChartMarker, zoom: number): boolean;
  goesAround(symbol: string): boolean;
  airportsChanged(): void;

  joinBeacons(): void;
  fitLooks(): void;
  dressLayers(): void;
  choose(marker: ChartMarker | null): void;
  chooseEdited(marker: ChartMarker | null): void;
  hasNames(symbol: string): boolean;
  hasRose(marker: ChartMarker): boolean;
  isChosen(marker: ChartMarker): boolean;
  fitRoses(): void;
  noteRunway(highEnd: Place, lowEnd: Place): void;

  setPlanPoints(points: TrackPoint[]): void;
  matchPlan(): void;
  dressPlan(): void;
  planText(point: TrackPoint): string;
  planTells(point: TrackPoint): boolean;
  markerOfPoint(point: TrackPoint): ChartMarker | null;
  isPointOf(marker: ChartMarker, point: TrackPoint): boolean;
  plannedMarkers(): ChartMarker[];
  isPlanned(marker: ChartMarker): boolean;

  layers: ChartLayer[];
  newManager(old?: MarkerManager | null): MarkerManager;
  listenToLayer(layer: google.maps.Data, markerOf?: (feature: google.maps.Data.Feature) => ChartMarker): void;
  showEdited(marker: ChartMarker | null): void;
  whileEditing(marker: ChartMarker, call: () => void): void;
  removeLast(): void;

  popupContent(html: string): HTMLElement;
  openPopup(marker: ChartMarker): void;
  closePopup(marker?: ChartMarker): void;
  closeLostPopup(): void;
  popupMarker(): ChartMarker | null;
  textLines(html: string): string[];
  openMenu(title: Title, entries: MenuEntry[], at?: Spot): void;
  openMenuOf(place: Place, first: ChartMarker | null, at?: Spot): void;
  openMenuHere(): void;
  closeMenu(): void;
  menuIsOpen(): boolean;
  pressClosesMenu(): boolean;
  menuKey(event: KeyboardEvent): void;
  pointAt(marker: ChartMarker | null): void;
  reportMarker(marker: ChartMarker | null): void;
  positionText(position: Place): string;

  pointer: Spot & { still: boolean };
  pixelsBetween(a: Place, b: Place): number;
  pixelOf(place: Place): Spot;
  movers: Array<() => google.maps.Marker | null>;
  moversAt(place: Place): ChartMarker[];
  moverMoved(): void;
  markersAt(place: Place, first: ChartMarker | null): ChartMarker[];
  shorten(markers: ChartMarker[], most: number): ChartMarker[];
  describe(marker: ChartMarker): Title;
  putBeside(element: HTMLElement, x: number, y: number, distance?: number): void;

  isMeasuring(): boolean;
  hasMeasure(): boolean;
  startMeasure(place: Place, name: string): void;
  measureTo(place: Place, name: string): void;
  snapMeasure(marker: ChartMarker | null): void;
  endMeasure(): void;
  clearMeasure(): void;

  courseText(degrees: number): string;
  milesText(miles: number): string;
  discSize: number;
  discsAlong(x: number, y: number, width: number, angle: number): Spot[];
  discsAround(middle: Spot, reach: number): Spot[];
  discsBetween(projection: google.maps.MapCanvasProjection, from: Place, to: Place): Spot[];
  wayBetween(projection: google.maps.MapCanvasProjection, from: Spot, to: Spot): Spot;
  Room: new () => Room;
  LegTexts: new (colours: () => { text: string, rim: string }) => LegTexts;
  Track: new (style: TrackStyle) => Track;
  route: Track;
  procedure: Track;

  drawRunway(highEnd: Place, lowEnd: Place): void;
  clearRunways(): void;
  hasRunways(): boolean;
  shownRunways(): Place[][];

  openAirway(level: string): void;
  addToAirway(position: Place): void;
  showAirways(level: string, on: boolean): void;

  startPlace(): Place | null;
  setStart(position: Place, aircraft: string, heading: number): void;
  showAircraft(position: Place, title: string, heading: number): void;
  moveAircraft(position: Place, heading: number): void;
  eraseAircraft(): void;

  continueTrail(position: Place): void;
  clearTrail(): void;
  hasTrail(): boolean;
  trailLengths(): number[];
}

interface Window {
  /** The program; absent in a browser. */
  mainWindow?: Record<string, (...values: (string | number)[]) => void>;
  loadMapService(): void;
  settleMapService(): void;
}

/** Writes the map engine into the page. */
declare function loadMapEngine(): void;

// The map service leaves open what a feature's properties are and what a listener is given.
declare namespace google.maps {
  interface Map {
    addListener(event: 'click' | 'dblclick' | 'rightclick' | 'mousemove' | 'mouseout',
      handler: (event: google.maps.MapMouseEvent) => void): google.maps.MapsEventListener;
  }

  interface Data {
    addListener(event: 'click' | 'dblclick' | 'rightclick' | 'mouseover' | 'mouseout' | 'mousemove',
      handler: (event: google.maps.Data.MouseEvent) => void): google.maps.MapsEventListener;
  }
}

declare namespace google.maps.Data {
  interface Feature {
    getProperty(name: 'marker'): ChartMarker;
    getProperty(name: 'point'): TrackPoint;
    getProperty(name: 'text'): string;
  }
}
