// Small wishes of the player's that the browser keeps, where it keeps anything.
export function remembered(name, otherwise) {
  try {
    return localStorage.getItem(`orvane-${name}`) ?? otherwise;
  } catch {
    return otherwise;
  }
}

export function remember(name, value) {
  try {
    localStorage.setItem(`orvane-${name}`, value);
  } catch {
    // not in this window
  }
}
