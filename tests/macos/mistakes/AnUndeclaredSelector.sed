# in: SecondStart.mm
# says: undeclared selector 'reopened:reply:'
s/@selector(reopen:reply:)/@selector(reopened:reply:)/
