/**
 * The names of the base map: countries, seas, cities. Which of them have room beside each other is found for a zoom
 * and the whole world, so that a name stays where it is however the map is moved. Where the chart has written, a name
 * goes elsewhere about its place or stays away.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const family = '"DejaVu Sans", "Segoe UI", sans-serif';

  /** Between two names, pixels. */
  const gap = 4;
  /** Half the height of the letters, and what a picture has around them for their rim and their slant. */
  const half = 8;
  const margin = 4;
  /** The least width of a strip of pictures. On it pictures begin at whole pixels of most screens. */
  const stripWidth = 1024;
  const stripStep = 4;
  const stripHeight = 2 * (half + margin);

  /** Letters of each kind; countries are spaced capitals. The colours are parts of the base colours. */
  const kinds = {
    country: { size: '10px', space: 2.5, capitals: true, colour: 'countryText', rim: 'placeRim' },
    sea: { size: '11px', style: 'italic', space: 0.6, colour: 'seaText', rim: 'seaRim' },
    city: { space: 0, colour: 'placeText', rim: 'placeRim' },
  };
  /** Pixels of a city's letters and the radius of its dot, by rank. */
  const cities = [null, [12, 2.2], [11, 2], [10.5, 1.8], [10, 1.6], [10, 1.5]];

  /** Half the height of what letters cover, and the pixels from the place to a row of letters above or below it. */
  const letterHalf = 6;
  const rowStep = 13;
  /** How many rows a name that has no dot may move. */
  const rows = [-1, 1, -2, 2];

  /** Boxes of pixels that no other may touch, found by squares. Hundreds are tried for each zoom. */
  const square = 128;
  /** More than there are squares along the world at the nearest zoom. */
  const rowKeys = 0x100000;

  class Room {
    constructor() {
      this.squares = new Map();
    }

    isFree(box) {
      const last = Math.floor(box.right / square);
      const bottom = Math.floor(box.bottom / square);
      for (let row = Math.floor(box.top / square); row <= bottom; ++row) {
        for (let column = Math.floor(box.left / square); column <= last; ++column) {
          const others = this.squares.get(row * rowKeys + column);
          if (others && others.some(other => touch(other, box)))
            return false;
        }
      }
      return true;
    }

    take(box) {
      const last = Math.floor(box.right / square);
      const bottom = Math.floor(box.bottom / square);
      for (let row = Math.floor(box.top / square); row <= bottom; ++row) {
        for (let column = Math.floor(box.left / square); column <= last; ++column) {
          const key = row * rowKeys + column;
          const there = this.squares.get(key);
          if (there)
            there.push(box);
          else
            this.squares.set(key, [box]);
        }
      }
    }
  }

  function touch(a, b) {
    return a.left < b.right && a.right > b.left && a.top < b.bottom && a.bottom > b.top;
  }

  class Name {
    /** @param {Array} row kind, first and last zoom, latitude, longitude, English name, French name, rank */
    constructor(row, french) {
      const kind = kinds[row[0]];
      this.kind = kind;
      this.from = row[1];
      this.to = row[2];
      this.x = engine.unitX(row[4]);
      this.y = engine.unitY(row[3]);
      this.text = french ? row[6] : row[5];
      this.dot = row[7] ? cities[row[7]][1] : 0;
      this.size = row[7] ? `${cities[row[7]][0]}px` : kind.size;
      if (kind.capitals)
        this.text = this.text.toUpperCase();
      this.font = null;
      this.width = 0;
      this.picture = null;
    }

    /** The pixels where the letters begin, of which the first choice comes first, and the box of the whole. */
    places(scale) {
      if (!this.font) {
        const look = { text: '', fontSize: this.size, fontWeight: this.kind.style, fontFamily: family };
        this.font = engine.labelText(look).font;
        this.width = this.font.widthOf(this.text) + this.kind.space * (this.text.length - 1);
      }
      const x = Math.round(this.x * scale);
      const y = Math.round(this.y * scale);
      if (!this.dot)
        return [this.placeAt(x, y, x - this.width / 2, y)];
      const away = this.dot + 4;
      return [this.placeAt(x, y, x + away, y), this.placeAt(x, y, x - away - this.width, y)];
    }

    /** Where else the letters may stand. @param {{x: number, y: number}} place one of the above */
    otherPlaces(place) {
      const { x, y } = place;
      const centred = x - this.width / 2;
      if (!this.dot)
        return rows.map(row => this.placeAt(x, y, centred, y + row * rowStep));
      const away = this.dot + 4;
      const columns = [x + away, x - away - this.width, centred];
      return [].concat(...[0, -rowStep, rowStep].map(down =>
        columns.filter(letters => down || letters !== centred)
          .map(letters => this.placeAt(x, y, letters, y + down))));
    }

    /** @param {number} letters the left end of the letters @param {number} row their middle */
    placeAt(x, y, letters, row) {
      return {
        name: this,
        x: x,
        y: y,
        row: row,
        letters: Math.round(letters),
        left: Math.min(letters, x - this.dot) - gap,
        right: Math.max(letters + this.width, x + this.dot) + gap,
        top: Math.min(y, row) - 7 - gap / 2,
        bottom: Math.max(y, row) + 7 + gap / 2,
      };
    }
  }

  /** Pictures of names side by side; it is filled from the left. */
  class Strip {
    /** @param {Name} first the one for which it is made, which may be wider than others */
    constructor(first) {
      this.ratio = window.devicePixelRatio || 1;
      this.canvas = document.createElement('canvas');
      this.width = Math.max(stripWidth, widthOnStrip(first));
      this.end = 0;
      engine.clearPicture(this.canvas, { width: this.width, height: stripHeight });
    }

    hasRoom(name) {
      return this.end + widthOnStrip(name) <= this.width;
    }

    take(name) {
      const width = widthOnStrip(name);
      name.picture = { canvas: this.canvas, ratio: this.ratio, x: this.end, width: width };
      this.end += width;
    }
  }

  const widthOnStrip = name => stripStep * Math.ceil((name.width + 2 * margin) / stripStep);

  class Names {
    /** @param {?Array} data rows as Name takes them, those that come first have the room first */
    constructor(data) {
      const french = document.documentElement.lang === 'fr';
      this.all = (data || []).map(row => new Name(row, french));
      this.colours = engine.baseColours();
      this.zoom = NaN;
      this.placedIn = null;
      this.placed = [];
      this.written = [];
      /** The one with room for more pictures, and for which palette and screen these are. */
      this.strip = null;
      this.drawnIn = null;
      this.drawnFor = NaN;
      /** A raster map has its own names. */
      this.hidden = false;
    }

    placesAt(zoom, scale) {
      if (this.hidden)
        return [];

      if (zoom === this.zoom && this.colours === this.placedIn)
        return this.placed;
      const room = new Room();
      this.zoom = zoom;
      this.placedIn = this.colours;
      this.placed = [];
      this.all.filter(name => zoom >= name.from && zoom < name.to && this.colours[name.kind.colour]).forEach(name => {
        const place = name.places(scale).find(candidate => room.isFree(candidate));
        if (place) {
          room.take(place);
          this.placed.push(place);
        }
      });
      return this.placed;
    }

    /**
     * Writes the names for which there is room.
     * @param {TakenRoom} room what the chart has taken of it
     */
    paint(frame, room) {
      this.written = [];
      const waiting = [];
      this.placesIn(frame).forEach(place => {
        if (coverOf(place, frame.zoom, room) < engine.lineCover)
          this.written.push(place);
        else
          waiting.push(place);
      });
      waiting.forEach(place => {
        const other = this.otherPlace(place, frame.zoom, room);
        if (other) {
          this.written.push(other);
          // The chart knows where the name asked to stand, not where it stands now.
          room.putName(other);
        }
      });
      this.makePictures(this.written.map(place => place.name));
      this.written.forEach(place => this.write(frame.context, place, frame.left, frame.top));
    }

    /** The places in a frame, in every copy of the world that it shows. */
    placesIn(frame) {
      const all = this.placesAt(frame.zoom, frame.scale);
      const found = [];
      for (let world = frame.firstWorld - 1; world <= frame.lastWorld + 1; ++world) {
        const left = frame.left - world * frame.scale;
        all.forEach(place => {
          if (place.right > left && place.left < left + frame.width && place.bottom > frame.top
            && place.top < frame.top + frame.height)
            found.push(world ? movedBy(place, world * frame.scale) : place);
        });
      }
      return found;
    }

    /** Another place about that of a name; of two on a line the first. Null when nothing is free. */
    otherPlace(place, zoom, room) {
      let onLine = coverOf(place, zoom, room) === engine.lineCover ? place : null;
      const free = place.name.otherPlaces(place).find(other => {
        const cover = coverOf(other, zoom, room);
        if (cover > engine.lineCover || this.written.some(each => touch(each, other)))
          return false;
        onLine = onLine || other;
        return cover < engine.lineCover;
      });
      return free || onLine;
    }

    /** Copies the name's picture; the dot and the letters stand on whole pixels, so that it stays sharp. */
    write(context, place, left, top) {
      const name = place.name;
      const { canvas, ratio, x, width } = name.picture;
      context.drawImage(canvas, x * ratio, 0, width * ratio, stripHeight * ratio,
        place.letters - left - margin, place.row - top - half - margin, width, stripHeight);
      if (name.dot) {
        context.fillStyle = this.colours[name.kind.colour];
        context.beginPath();
        context.arc(place.x - left, place.y - top, name.dot, 0, 2 * Math.PI);
        context.fill();
      }
    }

    /**
     * Draws the letters with their rims, once for a palette and screen. Names share strips: a canvas for each takes
     * longer than its letters, and far more memory.
     */
    makePictures(names) {
      this.forgetOthers();
      // A new font takes as long as several letters.
      const missing = Array.from(new Set(names.filter(name => !name.picture)))
        .sort((a, b) => (a.font.name < b.font.name ? -1 : 1));
      for (let i = 0; i < missing.length;) {
        if (!this.strip || !this.strip.hasRoom(missing[i]))
          this.strip = new Strip(missing[i]);
        const first = i;
        const left = this.strip.end;
        for (; i < missing.length && this.strip.hasRoom(missing[i]); ++i)
          this.strip.take(missing[i]);
        this.drawPictures(missing.slice(first, i), left);
      }
    }

    /** Those of another palette or screen go, of names that are not in view too: nobody would ever copy them again. */
    forgetOthers() {
      const ratio = window.devicePixelRatio || 1;
      if (this.colours === this.drawnIn && ratio === this.drawnFor)
        return;
      this.drawnIn = this.colours;
      this.drawnFor = ratio;
      this.strip = null;
      this.all.forEach(name => {
        name.picture = null;
      });
    }

    /** @param {number} left where their places on the present strip begin */
    drawPictures(names, left) {
      const context = this.strip.canvas.getContext('2d');
      context.save();
      context.translate(left, 0);
      engine.drawRim(context, { width: this.strip.end - left, height: stripHeight },
        letters => this.drawAll(letters, names, left, 'rim'));
      this.drawAll(context, names, left, 'colour');
      context.restore();
    }

    /** @param {string} part of their kinds' colours */
    drawAll(context, names, left, part) {
      let font = null;
      context.textBaseline = 'middle';
      names.forEach(name => {
        const colour = this.colours[name.kind[part]];
        if (!colour)
          return;
        if (font !== name.font)
          context.font = name.font.name;
        font = name.font;
        context.fillStyle = colour;
        this.letters(name, (text, x) => context.fillText(text, name.picture.x - left + x, half + margin));
      });
    }

    /** A canvas knows no space between letters: spaced names are written one by one. */
    letters(name, write) {
      if (!name.kind.space) {
        write(name.text, margin);
        return;
      }
      let at = margin;
      Array.from(name.text).forEach(letter => {
        write(letter, at);
        at += name.font.widthOf(letter) + name.kind.space;
      });
    }
  }

  /** What the chart has where the letters would stand. The dot may lie below a symbol of the same place. */
  function coverOf(place, zoom, room) {
    return room.coverAt(zoom, place.letters, place.row - letterHalf, place.name.width, 2 * letterHalf);
  }

  /** A place in another copy of the world. */
  const movedBy = (place, shift) => Object.assign({}, place, {
    x: place.x + shift,
    letters: Math.round(place.letters + shift),
    left: place.left + shift,
    right: place.right + shift,
  });

  engine.Names = Names;
})();
