/**
 * The filter of the pop-ups' HTML. Names stand unescaped in the program's texts, so that any element may come with
 * them: what reaches the document is built anew, out of text and of the few elements that the program itself writes.
 */
(function () {
  'use strict';

  /**
   * The elements of the program's texts, each with the attributes that it has there.
   * @type {Record<string, string[]>}
   */
  const allowed = { B: [], BR: [], FONT: ['color'] };
  /** Elements whose inside is no text for a reader. */
  const mute = /^(?:script|style|title|textarea|iframe|noframes|noembed|noscript|xmp|template|object|embed|select)$/i;

  /** What of a text is read, in characters, and how deep its elements lie: the program's own need a tenth of either. */
  const longest = 4000;
  const deepest = 20;

  /** An allowed element with its allowed attributes, without its inside. @type {(from: Element) => HTMLElement} */
  function remake(from) {
    const element = document.createElement(from.nodeName);
    allowed[from.nodeName].filter(name => from.hasAttribute(name))
      .forEach(name => element.setAttribute(name, from.getAttribute(name)));
    return element;
  }

  /**
   * Copies what lies below the walker's node. It is walked by the walker alone: a form lets the names of its fields
   * stand for its own properties.
   * Elements that lie too deep, which the layout would take minutes for, leave their text in the last that does not.
   * @type {(walker: TreeWalker, to: HTMLElement, depth: number) => void}
   */
  function copyBelow(walker, to, depth) {
    if (!walker.firstChild())
      return;
    do {
      const node = walker.currentNode;
      if (node.nodeType === Node.TEXT_NODE)
        to.appendChild(document.createTextNode(node.nodeValue));
      else if (depth < deepest && Object.prototype.hasOwnProperty.call(allowed, node.nodeName))
        copyBelow(walker, to.appendChild(remake(/** @type {Element} */ (node))), depth + 1);
      else if (node instanceof Element && !mute.test(String(node.nodeName)))
        copyBelow(walker, to, depth);
    } while (walker.nextSibling());
    walker.parentNode();
  }

  /**
   * An element with the text's allowed content. It is read in a document of its own, which is never shown: nothing
   * loads and nothing runs there.
   */
  page.popupContent = function (html) {
    const reader = document.implementation.createHTMLDocument('');
    const inert = reader.createElement('div');
    inert.innerHTML = html.slice(0, longest);
    const content = document.createElement('div');
    content.className = 'popup-text';
    copyBelow(reader.createTreeWalker(inert, NodeFilter.SHOW_ALL), content, 0);
    return content;
  };
})();
