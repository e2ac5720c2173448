# in: AppleScripts.mm
# says: may not respond to 'countByEnumeratingWithState
s/sharedWorkspace\.runningApplications/sharedWorkspace/
