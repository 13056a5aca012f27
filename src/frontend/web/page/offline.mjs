export function startOffline() {}
