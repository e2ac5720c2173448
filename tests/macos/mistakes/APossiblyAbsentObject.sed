# in: WorkspaceLinks.mm
# says: implicit conversion from nullable pointer .* to non-nullable
s/openURL:address/openURL:[NSURL URLWithString:nativeText(url)]/
