/**
 * Yours: where the map comes from. As shipped it comes from the engine that lies beside the page, and nothing is asked of
 * a network. What is left out here is as shipped. A new version of the program leaves this file as it is.
 */
var mapSettings = {
  /** The address of a map service's script, without the key; empty: none, the map is the engine's. */
  address: '',
  /** The key that the service asks for; empty: none is sent. */
  key: '',
  /**
   * Seconds after which the service is given up, and after which a raster map without a picture is told to be missing.
   */
  wait: 4,
  /**
   * Where the pictures of a raster map come from, with {z}, {x} and {y} for zoom, column and row and the host written
   * out; empty: none is shown.
   */
  tileAddress: '',
  /**
   * Further hosts, as in 'https://a.example https://b.example:8080', to which that address leads on. No other gives the
   * page a picture.
   */
  tileHosts: '',
  /** What the maker of the raster map wants to be named, as text; always shown with the map. */
  tileAttribution: '',
  /** The last zoom that the raster map has; beyond it the pictures are enlarged. */
  tileLastZoom: 18,
};
