/**
 * What the map engine supplies of the map service, and what its files share; for the type check alone, nothing here is
 * shipped. The engine's classes have to fit what the service's maker declares, member by member.
 */

type LatLng = google.maps.LatLng;

/** A class of the service: the arguments that the engine takes and the members that it has. */
type Part<Class extends abstract new (...values: any[]) => any, Arguments extends ConstructorParameters<Class>,
  Members extends keyof InstanceType<Class>> = new (...values: Arguments) => Pick<InstanceType<Class>, Members>;

type MapOptions = Pick<google.maps.MapOptions, 'center' | 'zoom' | 'zoomControl' | 'scaleControl' | 'styles'
  | 'disableDoubleClickZoom' | 'draggableCursor' | 'keyboardShortcuts'>;
type MarkerOptions = Pick<google.maps.MarkerOptions, 'position' | 'map' | 'icon' | 'title' | 'draggable' | 'zIndex'>;
type PolylineOptions = Pick<google.maps.PolylineOptions, 'path' | 'map' | 'strokeColor' | 'strokeOpacity'
  | 'strokeWeight' | 'geodesic' | 'icons' | 'zIndex'>;
type PolygonOptions = Pick<google.maps.PolygonOptions, 'paths' | 'map' | 'strokeColor' | 'strokeOpacity'
  | 'strokeWeight' | 'geodesic' | 'fillColor' | 'fillOpacity' | 'zIndex'>;
type InfoWindowOptions = Pick<google.maps.InfoWindowOptions, 'content' | 'position'>;
type ImageMapTypeOptions = Pick<google.maps.ImageMapTypeOptions, 'getTileUrl' | 'tileSize' | 'maxZoom' | 'minZoom'
  | 'name' | 'opacity'>;
type PointOptions = Pick<google.maps.Data.FeatureOptions, 'geometry' | 'properties'>;
type PointStyle = Pick<google.maps.Data.StyleOptions, 'icon' | 'label' | 'zIndex' | 'clickable' | 'visible'>;

/** All that the engine puts into `google.maps`. */
interface Supplied {
  event: Pick<typeof google.maps.event, 'addListener' | 'addListenerOnce' | 'removeListener' | 'hasListeners' | 'trigger'>;
  MVCObject: Part<typeof google.maps.MVCObject, [], 'get' | 'set' | 'setValues' | 'notify' | 'addListener'>;
  MVCArray: new <T>(items?: T[] | null) => Pick<google.maps.MVCArray<T>, 'getArray' | 'getAt' | 'getLength' | 'forEach'
    | 'push' | 'setAt' | 'pop' | 'clear'>;
  LatLng: Part<typeof google.maps.LatLng, [latitude: number, longitude: number], 'lat' | 'lng' | 'equals' | 'toString'>;
  Point: Part<typeof google.maps.Point, [x: number, y: number], 'x' | 'y'>;
  Size: Part<typeof google.maps.Size, [width: number, height: number], 'width' | 'height'>;
  ControlPosition: Pick<typeof google.maps.ControlPosition, 'TOP_LEFT' | 'TOP_CENTER' | 'TOP_RIGHT' | 'LEFT_CENTER'
    | 'LEFT_TOP' | 'LEFT_BOTTOM' | 'RIGHT_TOP' | 'RIGHT_CENTER' | 'RIGHT_BOTTOM' | 'BOTTOM_LEFT' | 'BOTTOM_CENTER'
    | 'BOTTOM_RIGHT'>;
  Map: Part<typeof google.maps.Map, [element: HTMLElement, options?: MapOptions], 'getCenter' | 'setCenter' | 'getZoom'
    | 'setZoom' | 'setOptions' | 'getDiv' | 'controls' | 'overlayMapTypes' | keyof MapParts>
    & (new (element: HTMLElement) => { getProjection(): Handed['Projection'] });
  ImageMapType: Part<typeof google.maps.ImageMapType, [options: ImageMapTypeOptions], 'getOpacity' | 'setOpacity'
    | 'options' | 'raster'>;
  Data: Part<typeof google.maps.Data, [options?: google.maps.Data.DataOptions], 'add' | 'remove' | 'contains' | 'forEach'
    | 'setStyle' | 'overrideStyle' | 'revertStyle' | 'getMap' | 'setMap' | keyof LayerParts>
    & { Feature: Part<typeof google.maps.Data.Feature, [options: PointOptions], 'getProperty' | keyof PointParts> };
  Polyline: Part<typeof google.maps.Polyline, [options?: PolylineOptions], 'setOptions' | 'getPath' | 'setPath' | 'getMap'
    | 'setMap'>;
  Polygon: Part<typeof google.maps.Polygon, [options?: PolygonOptions], 'getPath' | 'setPath' | 'getMap' | 'setMap'>;
  Marker: Part<typeof google.maps.Marker, [options?: MarkerOptions], 'getPosition' | 'setPosition' | 'getTitle'
    | 'setTitle' | 'setIcon' | 'getMap' | 'setMap'>;
  OverlayView: Part<typeof google.maps.OverlayView, [], 'getMap' | 'setMap' | 'onAdd' | 'draw' | 'onRemove'>
    & (new () => { getPanes(): Handed['MapPanes'], getProjection(): Handed['MapCanvasProjection'] });
  InfoWindow: Part<typeof google.maps.InfoWindow, [options?: InfoWindowOptions], 'getContent' | 'setContent'
    | 'getPosition' | 'setPosition' | 'open' | 'close'>;
}

/** What the engine hands out; the service lets nobody make it. */
interface Handed {
  MapPanes: Pick<google.maps.MapPanes, 'overlayLayer'>;
  Projection: Pick<google.maps.Projection, 'fromLatLngToPoint'>;
  MapCanvasProjection: Pick<google.maps.MapCanvasProjection, 'fromLatLngToDivPixel' | 'fromLatLngToContainerPixel'
    | 'fromDivPixelToLatLng' | 'getWorldWidth'>;
  /** Without an event of the document where a point has left the pointer. */
  MapMouseEvent: Pick<google.maps.MapMouseEvent, 'latLng'> & Partial<Pick<google.maps.MapMouseEvent, 'domEvent'>>;
  /** Of a point. */
  MouseEvent: Handed['MapMouseEvent'] & Pick<google.maps.Data.MouseEvent, 'feature'>;
  MapsEventListener: google.maps.MapsEventListener;
}

interface Listener extends google.maps.MapsEventListener {
  object: Listened;
  name: string;
  handler: Function;
}

type Listened = object & { listeners_?: Record<string, Listener[]> };

/** What a painter gets (canvas.js). */
interface Frame extends Area {
  context: CanvasRenderingContext2D;
  scale: number;
  firstWorld: number;
  lastWorld: number;
}

/** Of the whole world at a zoom, in CSS pixels. */
interface Area {
  /** From the world's west edge. */
  left: number;
  /** From the projection's northern limit. */
  top: number;
  width: number;
  height: number;
  zoom: number;
}

interface Box {
  left: number;
  top: number;
  right: number;
  bottom: number;
}

interface Painter {
  paint(frame: Frame): void;
}

/** Paints what it has at one zIndex; may be told of the frame before and after all painting. */
interface HeightPainter {
  heights(): number[];
  paintHeight(frame: Frame, height: number): void;
  begin?(frame: Frame): void;
  end?(frame: Frame): void;
}

interface Canvas extends L.Layer {
  invalidate(): void;
  paint(): void;
  paintMore(paint: (frame: Frame) => void): void;
}

/** A picture of a symbol; sprites.js tells the units. */
interface Sprite {
  canvas: HTMLCanvasElement;
  size: number;
  middle: number;
  radius: number;
  ratio: number;
  isEmpty: boolean;
}

/** A colour for each part of the base map; null for one that is not to be seen. */
type Colours = Record<'sea' | 'coast' | 'seaText' | 'seaRim' | 'land' | 'border' | 'countryText' | 'placeText'
  | 'placeRim', string | null>;

interface LabelFont {
  name: string;
  size: number;
  widthOf(text: string): number;
  drawRim(context: CanvasRenderingContext2D, text: string, x: number, y: number, colour: string): void;
}

interface LabelText {
  lines: string[];
  font: LabelFont;
  colour: string;
  width: number;
  height: number;
  /** The first line alone, once it has been asked for; null where it is the only one. */
  first?: LabelText | null;
}

interface PlacedLabel {
  x: number;
  y: number;
  text: LabelText;
}

/** Pixels from the frame's corner. */
interface Places {
  xs: number[];
  ys: number[];
}

/** The points of one zIndex with their places. */
interface PointLevel extends Places {
  height: number;
  points: PointParts[];
  /** The places of all, when these are the points that are left of a crowd. */
  all: Places | null;
}

/** What the base map writes: boxes in pixels of the first copy of the world. */
interface WrittenNames {
  placesAt(zoom: number, scale: number): Box[];
  /** Writes what finds room. */
  paint(frame: Frame, room: TakenRoom): void;
  /** Under a raster map there are none. */
  hidden: boolean;
}

/** What the chart has taken of the room for texts: declutter.js tells the heights. */
interface TakenRoom {
  coverAt(zoom: number, x: number, y: number, width: number, height: number): number;
  /** A name stands elsewhere than where `placesAt` has it. */
  putName(box: Box): void;
}

interface Declutter extends TakenRoom {
  place(frame: Frame, levels: PointLevel[], margin: number, version: number): PlacedLabel[];
}

/** Where something stands that the user may drag: unit coordinates, and its reach in pixels. */
interface Pin {
  x: number;
  y: number;
  radius: number;
}

/** The degrees on the edges of the view. */
interface EdgeLabels {
  colours: Colours;
  room: TakenRoom | null;
  write(): void;
}

interface HitGrid {
  forget(): void;
  inBox(minX: number, minY: number, maxX: number, maxY: number): { points: PointParts[], runs: number[] };
  nearest(x: number, y: number, radius: number, accepts: (point: PointParts) => boolean): Found;
}

interface Found {
  point: google.maps.Data.Feature | null;
  square: number;
}

interface Points extends HeightPainter {
  declutter: Declutter;
  show(layer: LayerParts): void;
  hide(layer: LayerParts): void;
  forget(): void;
  setRim(colour: string): void;
  nearest(x: number, y: number, scale: number): google.maps.Data.Feature | null;
}

/** A piece of a line; linepath.js tells the units. */
interface Run extends Box {
  xs: number[];
  ys: number[];
  start: number;
  length: number;
  bend: number;
  boxFrom(first: number): Box;
}

interface LinePath {
  geodesic: boolean;
  runs: Run[];
  extend(positions: LatLng[]): boolean;
  length(): number;
}

/** A line as it is painted. */
interface Line extends Required<Omit<PolylineOptions, 'path' | 'map'>> {
  fillColor: string;
  fillOpacity: number;
  positions: () => LatLng[];
  geometry: LinePath;
  /** How far it has been painted. */
  paintedRun?: number;
  paintedPoint?: number;
}

interface Lines extends HeightPainter, Painter {
  below: Lines | null;
  add(line: Line): void;
  remove(line: Line): void;
  eachPiece(frame: Frame, tell: Emit): void;
}

interface LinesHome {
  lines: Lines;
  canvas: Canvas;
  grow(): void;
}

/** Tells a piece of a line: x and y of both ends, and how far the first lies behind the beginning of its run, pixels. */
type Emit = (x1: number, y1: number, x2: number, y2: number, along: number) => void;
type EmitRun = (frame: Frame, run: Run, geodesic: boolean, emit: Emit) => void;

/** What the engine's own files use of a map, a layer, a point, an object besides what the service declares. */
interface MapParts {
  leaflet: L.Map;
  element: HTMLElement;
  options: MapOptions;
  lines: Lines;
  points: Points;
  pins: Set<Pin>;
  chart: Canvas;
  ground?: LinesHome;
  pointed: google.maps.Data.Feature | null;
  /** Asks for a look at what is under the pointer, with the next frame. */
  lookBelow(): void;
  /** While a button's event is being told, its longitude in the copy of the world that it met; else null. */
  clickedLongitude: number | null;
}

interface LayerParts {
  grid: HitGrid;
  dressing: number;
  dress(point: PointParts, ratio: number): void;
  remove(point: PointParts): void;
}

interface PointParts {
  geometry: LatLng;
  properties: Record<string, unknown>;
  layer: LayerParts | null;
  dressing: number;
  x: number;
  y: number;
  look: PointStyle | null;
  sprite: Sprite | null;
}

/** Leaflet's own corners of a map and the element that holds them. */
interface Corners {
  _controlCorners: Record<string, HTMLElement>;
  _controlContainer: HTMLElement;
}

declare namespace google.maps {
  interface Map extends MapParts {}
  interface Data extends LayerParts {}
  interface MVCArray<T> {
    items: T[];
  }
  interface ImageMapType {
    options: ImageMapTypeOptions;
    raster: L.GridLayer | null;
  }
}

declare namespace google.maps.Data {
  interface Feature extends PointParts {}
}

/** What is asked of Leaflet's events. */
type MousePlace = Pick<L.LeafletMouseEvent, 'latlng' | 'originalEvent'>;

type ChartMap = MapParts & Pick<google.maps.Map, 'getZoom' | 'setZoom'>;

/** What a file of the engine offers to the others; the comments stand where it is made. */
interface MapEngine {
  supply(parts: Partial<Supplied>): void;

  clipRing(ring: ArrayLike<number>, minX: number, minY: number, maxX: number, maxY: number): number[];
  clipSegment(x1: number, y1: number, x2: number, y2: number, minX: number, minY: number, maxX: number,
    maxY: number): number[] | null;

  latitudeLimit: number;
  tileSize: number;
  unitX(longitude: number): number;
  unitY(latitude: number): number;
  longitudeOf(x: number): number;
  latitudeOf(y: number): number;
  longitudeNear(longitude: number, other: number): number;
  isFinitePosition(position: unknown): position is LatLng;

  frameOf(context: CanvasRenderingContext2D, area: Area): Frame;
  paintSafely(painter: Painter, frame: Frame): void;
  NextFrame: new (paint: () => void) => { asked: boolean, ask(): void, cancel(): void };
  ChartCanvas: new (pane: string, painters: Painter[]) => Canvas;
  BaseTiles: new (pane: string, painters: Painter[]) => L.Layer & { invalidate(): void };
  Stack: new (parts: HeightPainter[]) => Painter;

  drawSymbol(symbol: google.maps.Symbol, used?: HTMLCanvasElement | null): Sprite;
  spriteOf(symbol: google.maps.Symbol): Sprite;

  baseColours(rules?: google.maps.MapTypeStyle[] | null): Colours;
  isDark(colour: string): boolean;
  mixed(colour: string, other: string, part: number): string;
  worldLevels(data: any[] | null): any[];
  Outlines: new (data: any[] | null) => Painter & { colours: Colours };
  Graticule: new () => Painter & { colours: Colours };
  GraticuleLabels: new () => L.Layer & EdgeLabels;
  Names: new (data: any[] | null) => WrittenNames & { colours: Colours };
  BaseMap: new (leaflet: L.Map, overlays: google.maps.MVCArray<google.maps.MapType | null>) => {
    names: WrittenNames,
    labels: EdgeLabels,
    onNames: () => void,
    setColours(colours: Colours): void,
  };
  /** Calls back when the view gets its first picture of the raster map, and when it has none any more. */
  rasterOf(type: google.maps.MapType, onBlank: () => void): L.GridLayer & { isBlank: boolean };
  ScaleBar: new () => L.Control;

  LinePath: new (geodesic: boolean) => LinePath;
  bendOf(width: number, length: number, y: number): number;
  bentPoints(x1: number, y1: number, x2: number, y2: number, pieces: number): number[];
  paintIcons(frame: Frame, line: Line, emitRun: EmitRun): void;
  fillArea(frame: Frame, line: Line): void;
  Lines: new () => Lines;
  linesAt(map: MapParts, height: number): LinesHome;

  HitGrid: new (points: PointParts[]) => HitGrid;
  clearPicture(canvas: HTMLCanvasElement, picture: { width: number, height: number }): CanvasRenderingContext2D;
  drawRim(context: CanvasRenderingContext2D, picture: { width: number, height: number },
    write: (context: CanvasRenderingContext2D) => void): void;
  labelText(label: Partial<google.maps.MarkerLabel>): LabelText;
  firstLine(text: LabelText): LabelText | null;
  writeLabels(context: CanvasRenderingContext2D, labels: PlacedLabel[], rim: string): void;
  Declutter: new (names: WrittenNames | null, lines: Lines | null, pins: Set<Pin> | null) => Declutter;
  /** What `TakenRoom.coverAt` tells of a line; names are less, symbols and labels more. */
  lineCover: number;
  Points: new (names: WrittenNames | null, lines: Lines | null, pins: Set<Pin> | null) => Points;

  controlsOf(leaflet: L.Map): google.maps.MVCArray<HTMLElement>[];
  nextZoom(zoom: number, inwards: boolean): number;
  leavePoint(map: MapParts, layer: LayerParts, point?: google.maps.Data.Feature): void;
  /** At the first of the places where there is a point; without one the map is told of the last place. */
  tellPlace(map: ChartMap, name: string, places: MousePlace[]): void;
  listenToPointer(map: ChartMap): void;
  listenToKeys(map: ChartMap): void;
}

interface Window {
  mapEngine: MapEngine;
  L_NO_TOUCH: boolean;
  /** Made when the project is built; outlines.js and names.js of maps/build tell their form. */
  worldOutlines: any[];
  worldNames: any[];
}
